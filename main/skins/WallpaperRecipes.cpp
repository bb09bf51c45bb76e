// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

namespace ambrelle {

WallpaperRecipe wallpaperRecipe(Skin skin)
{
    switch (skin) {
    case Skin::paper: return paintPaperWallpaper;
    case Skin::neon: return paintNeonWallpaper;
    case Skin::bauhaus: return paintBauhausWallpaper;
    case Skin::grove: return paintGroveWallpaper;
    case Skin::aero: return paintAeroWallpaper;
    case Skin::classic: return paintClassicWallpaper;
    case Skin::overdrive: return paintOverdriveWallpaper;
    case Skin::hifi: return paintHiFiWallpaper;
    case Skin::groove: return paintGrooveWallpaper;
    case Skin::chalk: return paintChalkWallpaper;
    case Skin::quest: return paintQuestWallpaper;
    case Skin::glass: return paintGlassWallpaper;
    case Skin::cockpit: return paintCockpitWallpaper;
    case Skin::apollo: return paintApolloWallpaper;
    case Skin::abyss: return paintAbyssWallpaper;
    case Skin::atlas: return paintAtlasWallpaper;
    case Skin::kyoto: return paintKyotoWallpaper;
    case Skin::cork: return paintCorkWallpaper;
    case Skin::polar: return paintPolarWallpaper;
    case Skin::mono: return paintMonoWallpaper;
    case Skin::slate: return paintSlateWallpaper;
    case Skin::lumen: return paintLumenWallpaper;
    case Skin::field: return paintFieldWallpaper;
    case Skin::fieldDark: return paintFieldDarkWallpaper;
    case Skin::obsidian: return paintObsidianWallpaper;
    case Skin::midnight: return paintMidnightWallpaper;
    case Skin::pulse: return paintPulseWallpaper;
    case Skin::prism: return paintPrismWallpaper;
    case Skin::carbon: return paintCarbonWallpaper;
    case Skin::velvet: return paintVelvetWallpaper;
    }
    Q_UNREACHABLE();
}

} // namespace ambrelle
