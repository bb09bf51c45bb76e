// SPDX-License-Identifier: MIT

#include "desktop/FittingSkin.h"

#include "model/AppSettings.h"
#include "platform/SystemAppearance.h"

namespace ambrelle {

Skin fittingSkin(Skin skin, const AppSettings& settings, const SystemAppearance& appearance)
{
    if (!settings.followAppearance() || !appearance.isAvailable() || isLight(skin) != appearance.isDark())
        return skin;
    return appearancePartner(skin).value_or(skin);
}

} // namespace ambrelle
