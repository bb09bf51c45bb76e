// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <array>

namespace ambrelle {

/// What the catalogue site says, in English as all of it.
namespace SiteTexts {

/// Themes to feature: one of each sort, light and dark.
inline constexpr std::array heroThemes{Skin::neon, Skin::paper, Skin::hifi, Skin::atlas, Skin::kyoto, Skin::midnight};

/// What a widget of that kind is for, in a sentence or two.
QString blurb(WidgetKind kind);

} // namespace SiteTexts

} // namespace ambrelle
