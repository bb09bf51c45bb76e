// SPDX-License-Identifier: MIT

#include "skins/plain/PlainPalette.h"

#include <algorithm>
#include <array>

namespace ambrelle {

namespace {

constexpr std::array palettes{
};

} // namespace

const PlainPalette& plainPalette(Skin skin)
{
    const auto* const row = std::ranges::find(palettes, skin, &PlainPalette::skin);
    if (row == palettes.end())
        qFatal("The skin %s has no palette.", rawValue(skin).data());
    return *row;
}

} // namespace ambrelle
