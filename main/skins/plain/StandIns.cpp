// SPDX-License-Identifier: MIT

#include "skins/plain/PlainPalette.h"
#include "skins/plain/PlainSkin.h"
#include "skins/Skins.h"

namespace ambrelle {

namespace {

std::shared_ptr<const FaceRenderer> standIn(Skin skin, const std::optional<QColor>& accent)
{
    return std::make_shared<PlainSkin>(plainPalette(skin), accent);
}

} // namespace

// One function for each skin that has no painter of its own yet.

} // namespace ambrelle
