// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

namespace ambrelle {

class AppSettings;
class SystemAppearance;

/// The skin itself, or its light or dark partner, where the user wants skins to follow the desktop's appearance and
/// that is known to be the partner's. Most skins have no partner.
Skin fittingSkin(Skin skin, const AppSettings& settings, const SystemAppearance& appearance);

} // namespace ambrelle
