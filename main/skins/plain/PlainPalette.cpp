#include "skins/plain/PlainPalette.h"

#include <array>

namespace ambrelle {

namespace {

constexpr bool italic = true;
constexpr bool upright = false;

constexpr std::array palettes{
    PlainPalette{Skin::paper, {"Old Standard TT", 700, upright, 0.72}, {"Old Standard TT", 400, upright, 0.72},
        {"Old Standard TT", 400, upright, 0.72}, 1, 0xFBF7EC, 1, 0x1B1916, 0x5A5347, 0xCFC6B4, 0xA3211B, 0x2B4A6F,
        0x8A6D2F, 0x2E6B3E, 0xA3211B, 0xA3211B, 2, 14, 8, false, 12, 12},
    PlainPalette{Skin::neon, {"Kaushan Script", 400, upright, 0.71}, {"Inter", 500, upright, 0.73},
        {"Inter Display", 900, italic, 0.74}, 0.9, 0x150A2A, 0.86, 0xF6ECFF, 0xBDA8E6, 0x3C2468, 0xFF4FA8, 0x19E3FF,
        0xFFB03A, 0x19E3FF, 0xFF4FA8, 0xFF7A5C, 14, 16, 6, false, 16, 10},
    PlainPalette{Skin::bauhaus, {"League Spartan", 700, upright, 0.69}, {"League Spartan", 500, upright, 0.69},
        {"League Spartan", 800, upright, 0.69}, 0.94, 0xF3E9D2, 1, 0x141414, 0x544E3C, 0xD8CBAA, 0xC8221A, 0x1F4E9C,
        0xF2B61B, 0x1F4E9C, 0xC8221A, 0xC8221A, 0, 14, 8, false, 12, 11},
    PlainPalette{Skin::grove, {"GFS Didot", 400, italic, 0.7}, {"GFS Didot", 400, upright, 0.7},
        {"GFS Didot", 400, upright, 0.72}, 1, 0x173A2B, 1, 0xF3ECD8, 0xBFC8A8, 0x35593F, 0xD9B45B, 0x8DB36B, 0xC98F6B,
        0xA8CF8A, 0xE6A07A, 0xF0906A, 18, 16, 6, false, 12, 11},
    PlainPalette{Skin::aero, {"Cantarell", 700, upright, 0.71}, {"Cantarell", 400, upright, 0.71},
        {"Cantarell", 300, upright, 0.71}, 0.95, 0x063358, 0.74, 0xFFFFFF, 0xDDF1FF, 0x5E93BE, 0x5CC8FF, 0x8BE04A,
        0xFFC93A, 0xA4EC66, 0x7FD4FF, 0xFFB54A, 12, 14, 6, false, 12, 10},
    PlainPalette{Skin::overdrive, {"Bebas Neue", 700, upright, 0.7}, {"JetBrains Mono", 500, upright, 0.73},
        {"Bebas Neue", 700, upright, 0.72}, 1, 0x0D0D10, 1, 0xF7F3D0, 0xB3AE8C, 0x38362B, 0xFCEE0A, 0x18E0F0, 0xFF3B61,
        0x18E0F0, 0xFF3B61, 0xFF3B61, 0, 14, 6, true, 11.5, 10.5},
    PlainPalette{Skin::groove, {"Lobster Two", 700, italic, 0.74}, {"Quicksand", 700, upright, 0.7},
        {"Lobster Two", 700, upright, 0.76}, 0.94, 0x4A2511, 1, 0xFBE7BF, 0xE6BE88, 0x6E3F20, 0xF58A33, 0xE9BA45,
        0xD9583A, 0xE9BA45, 0xF58A33, 0xFF8A5C, 28, 18, 6, false, 16, 10.5},
    PlainPalette{Skin::chalk, {"Chilanka", 700, upright, 0.66}, {"Chilanka", 400, upright, 0.66},
        {"CabinSketch", 700, upright, 0.7}, 0.92, 0x26463B, 1, 0xF4F1E6, 0xC6D2C6, 0x4C6A5D, 0xFFD95A, 0x7FC8E8,
        0xF5A3BB, 0x9BE07F, 0xF5A3BB, 0xFF9C8A, 6, 16, 6, false, 12, 12},
    PlainPalette{Skin::quest, {"DotGothic16", 400, upright, 0.7}, {"DotGothic16", 400, upright, 0.7},
        {"DotGothic16", 400, upright, 0.82}, 1.12, 0x1E2280, 1, 0xFFFFFF, 0xC9D1FF, 0x3F45AE, 0xFFD23F, 0xFF6B66,
        0x4FD36B, 0x4FD36B, 0xFF6B66, 0xFF6B66, 8, 16, 8, true, 16, 16},
    PlainPalette{Skin::cockpit, {"B612", 700, upright, 0.74}, {"B612", 700, upright, 0.74},
        {"B612", 700, upright, 0.77}, 1, 0x14181C, 1, 0xF2F4F5, 0xA9B4BD, 0x39424A, 0xFF7A3D, 0x5BE38A, 0x5CC8FF,
        0x5BE38A, 0x5CC8FF, 0xFF5A4A, 10, 14, 6, true, 11.5, 10},
    PlainPalette{Skin::apollo, {"Routed Gothic Wide", 400, upright, 0.7}, {"JetBrains Mono", 400, upright, 0.73},
        {"DSEG7 Classic", 700, italic, 1}, 1, 0x23282A, 1, 0xE6EBDD, 0xA9B3A8, 0x3E4644, 0xA6F26B, 0xFFC857, 0xFF6A58,
        0xA6F26B, 0xFFC857, 0xFF6A58, 4, 14, 8, true, 11.5, 10.5},
    PlainPalette{Skin::abyss, {"Old Standard TT", 700, upright, 0.72}, {"Routed Gothic", 400, upright, 0.7},
        {"Old Standard TT", 700, upright, 0.75}, 1, 0x0B2530, 1, 0xF0E2BF, 0xB3BFA6, 0x234652, 0xE0AE57, 0x49E0C2,
        0xE8895C, 0x49E0C2, 0xE8895C, 0xFF7A55, 16, 18, 6, true, 11.5, 11},
    PlainPalette{Skin::atlas, {"Cantarell", 700, upright, 0.71}, {"Cantarell", 400, upright, 0.71},
        {"Cantarell", 400, upright, 0.71}, 0.96, 0xF8F4E6, 1, 0x2A2A22, 0x5C5846, 0xCDBF9C, 0xB0461A, 0x2A6C9B,
        0x477A3F, 0x2E7648, 0x2A6C9B, 0xA82E18, 2, 14, 8, true, 11.5, 10.5},
    PlainPalette{Skin::kyoto, {"Sawarabi Mincho", 400, upright, 0.74}, {"Sawarabi Mincho", 400, upright, 0.74},
        {"Sawarabi Mincho", 400, upright, 0.76}, 1, 0xF6F1E4, 1, 0x1E1B18, 0x5C554B, 0xD5CAB5, 0xB3261E, 0x3A566F,
        0x5F6D31, 0x4A6B3A, 0xB3261E, 0xB3261E, 0, 18, 8, false, 12, 12},
    PlainPalette{Skin::cork, {"Chilanka", 700, upright, 0.66}, {"Chilanka", 400, upright, 0.66},
        {"Chilanka", 700, upright, 0.66}, 0.82, 0xFFE97A, 1, 0x2B2620, 0x574E40, 0xD9C46A, 0xBF2A22, 0x2B5F9E, 0x3B7A35,
        0x2F6B33, 0xB3302A, 0xA8231C, 2, 16, 6, false, 12, 12},
    PlainPalette{Skin::obsidian, {"Jura", 600, upright, 0.7}, {"Inter", 400, upright, 0.73},
        {"Bebas Neue", 300, upright, 0.71}, 1.06, 0x08090C, 0.94, 0xF5F6FA, 0xA3A9B9, 0x282C38, 0x9CB2FF, 0xE9A0FF,
        0x7DF2E4, 0x7DF2E4, 0xE9A0FF, 0xFF8C8C, 20, 18, 8, false, 12, 10},
    PlainPalette{Skin::midnight, {"Inter", 600, upright, 0.73}, {"Inter", 500, upright, 0.73},
        {"Inter Display", 600, upright, 0.74}, 1, 0x0E1838, 1, 0xEEF3FF, 0x9FB0DC, 0x22305F, 0x5B97FF, 0x22D3EE,
        0xAC7CFF, 0x22D3EE, 0xAC7CFF, 0xFF7A90, 16, 16, 6, false, 12, 10},
    PlainPalette{Skin::pulse, {"Quicksand", 700, upright, 0.7}, {"Quicksand Medium", 400, upright, 0.7},
        {"Quicksand", 700, upright, 0.7}, 0.88, 0x101014, 1, 0xFFFFFF, 0xABADB9, 0x2C2C36, 0xFF4468, 0x9BEA1B, 0x22DDEB,
        0x9BEA1B, 0x22DDEB, 0xFF5A5A, 24, 16, 6, false, 12, 10.5},
    PlainPalette{Skin::prism, {"Quicksand Medium", 400, upright, 0.7}, {"Inter", 400, upright, 0.73},
        {"Quicksand Light", 400, upright, 0.71}, 0.93, 0x15151C, 0.82, 0xFAFAFF, 0xBEBFCE, 0x3A3B48, 0xFFD166, 0xFF77A0,
        0x5FD0F5, 0x5FD0F5, 0xFF77A0, 0xFF7A7A, 20, 18, 6, false, 12, 10.5},
    PlainPalette{Skin::carbon, {"Play", 700, italic, 0.67}, {"Play", 400, upright, 0.67}, {"Play", 700, italic, 0.67},
        1, 0x141416, 1, 0xF7F7F7, 0xABABB0, 0x36363B, 0xFF4A2E, 0xFFC400, 0x28D17C, 0x28D17C, 0xFFC400, 0xFF5A40, 8, 14,
        6, true, 11.5, 10.5},
    PlainPalette{Skin::velvet, {"GFS Didot", 400, italic, 0.7}, {"GFS Didot", 400, upright, 0.7},
        {"Old Standard TT", 400, italic, 0.72}, 1, 0x2B1026, 1, 0xF8EBD9, 0xD2B7BF, 0x52294A, 0xE9C38C, 0xD893B6,
        0xA67BC0, 0xE9C38C, 0xD893B6, 0xFF9A8A, 26, 18, 6, false, 12, 11.5},
};

} // namespace

const PlainPalette* plainPalette(Skin skin)
{
    for (const PlainPalette& palette : palettes) {
        if (palette.skin == skin)
            return &palette;
    }
    return nullptr;
}

} // namespace ambrelle
