// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "wallpapers/Wallpaper.h"

namespace ambrelle {

/// The recipe of the skin's wallpaper. Changing one, or only the order of its draws, needs a new `Wallpaper::revision`.
WallpaperRecipe wallpaperRecipe(Skin skin);

// One file each, in the skin's own folder.
void paintPaperWallpaper(Painting& painting, SeededRandom& random);
void paintNeonWallpaper(Painting& painting, SeededRandom& random);
void paintBauhausWallpaper(Painting& painting, SeededRandom& random);
void paintGroveWallpaper(Painting& painting, SeededRandom& random);
void paintAeroWallpaper(Painting& painting, SeededRandom& random);
void paintClassicWallpaper(Painting& painting, SeededRandom& random);
void paintOverdriveWallpaper(Painting& painting, SeededRandom& random);
void paintHiFiWallpaper(Painting& painting, SeededRandom& random);
void paintGrooveWallpaper(Painting& painting, SeededRandom& random);
void paintChalkWallpaper(Painting& painting, SeededRandom& random);
void paintQuestWallpaper(Painting& painting, SeededRandom& random);
void paintGlassWallpaper(Painting& painting, SeededRandom& random);
void paintCockpitWallpaper(Painting& painting, SeededRandom& random);
void paintApolloWallpaper(Painting& painting, SeededRandom& random);
void paintAbyssWallpaper(Painting& painting, SeededRandom& random);
void paintAtlasWallpaper(Painting& painting, SeededRandom& random);
void paintKyotoWallpaper(Painting& painting, SeededRandom& random);
void paintCorkWallpaper(Painting& painting, SeededRandom& random);
void paintPolarWallpaper(Painting& painting, SeededRandom& random);
void paintMonoWallpaper(Painting& painting, SeededRandom& random);
void paintSlateWallpaper(Painting& painting, SeededRandom& random);
void paintLumenWallpaper(Painting& painting, SeededRandom& random);
void paintFieldWallpaper(Painting& painting, SeededRandom& random);
void paintFieldDarkWallpaper(Painting& painting, SeededRandom& random);
void paintObsidianWallpaper(Painting& painting, SeededRandom& random);
void paintMidnightWallpaper(Painting& painting, SeededRandom& random);
void paintPulseWallpaper(Painting& painting, SeededRandom& random);
void paintPrismWallpaper(Painting& painting, SeededRandom& random);
void paintCarbonWallpaper(Painting& painting, SeededRandom& random);
void paintVelvetWallpaper(Painting& painting, SeededRandom& random);

} // namespace ambrelle
