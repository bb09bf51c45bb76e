#include "skins/WallpaperRecipes.h"

namespace ambrelle {

void paintSlateWallpaper(Painting& painting, SeededRandom&)
{
    painting.verticalGradient(hex(0x202830), hex(0x0A0C10));
}

} // namespace ambrelle
