// SPDX-License-Identifier: MIT

#include "skins/quest/SkySprites.h"

#include "skins/quest/QuestSprites.h"

#include <array>
#include <string>
#include <vector>

namespace ambrelle::quest {

namespace {

constexpr std::string_view sunDisc = R"(
...oooo...
.ooyyyyoo.
.oyyyyyyo.
oyywwyyyyo
oyywyyyyyo
oyyyyyyyyo
oyyyyyyyoo
.oyyyyyyo.
.ooyyyyoo.
...oooo...)";

constexpr std::string_view straightRays = R"(
................
.......yy.......
..o..........o..
...y........y...
................
................
................
.y............y.
.y............y.
................
................
................
...y........y...
..o..........o..
.......yy.......
................)";

constexpr std::string_view slantedRays = R"(
................
....y......y....
................
...o........o...
.y............y.
................
................
................
................
................
................
.y............y.
...o........o...
................
....y......y....
................)";

constexpr std::string_view lowSun = R"(
..y..y..y.
...oooo...
.yoyyyyoy.
..oywyyo..
yyowyyyoyy
..oyyyyo..
.yoyyyyoy.)";

constexpr std::string_view crescent = R"(
....mmmm....
..mmmmg.....
.mmmmg......
.mmmg.......
mmmmg.......
mmmmg.......
mmmmg.......
mmmmmg......
.mmmmmg...m.
.mmmmmmmmmm.
..gmmmmmmg..
....gggg....)";

constexpr std::string_view lowMoon = R"(
..mmm...
.mmg....
mmg.....
mmg...w.
mmmg....
.mmmmmm.
..mmmm..)";

constexpr std::string_view star = R"(
.w.
www
.w.)";

constexpr std::string_view cloud = R"(
....wwww......
...wwwwww.w...
..wwwwwwwwww..
.wwwwwwwwwwww.
wwwwwwwwwwwwww
wwwwwgwwwwwgww
gwwwgggwwwgggg
.gggggggggggg.)";

constexpr std::string_view drops = R"(
..b....b....b...
.bb...bb...bb...
.b....b....b....)";

constexpr std::string_view drop = R"(
...b......b.....
..bb.....bb.....)";

constexpr std::string_view flakes = R"(
.w.w......w.w...
..w...w.w..w....
.w.w...w..w.w...
......w.w.......)";

constexpr std::string_view lightning = R"(
...yyyy.
..yyyy..
.yyyyyy.
...yyy..
..yyy...
..yy....
.yy.....)";

constexpr std::string_view bank = R"(
wwwwwwwwwwwww...
................
...ggggggggggggg
................
.wwwwwwwwwww....)";

constexpr std::string_view dash = R"(
..gggggggg..
.g........g.
g..........g
g..........g
g..........g
g...gggg...g
g...gggg...g
g..........g
g..........g
g..........g
.g........g.
..gggggggg..)";

struct Part {
    std::string_view rows; ///< each after the end of a line
    int x;
    int y;
    char tint = 0; ///< of all its pixels, instead of their own
};

/// Parts laid over one another on 16 x 16 pixels.
std::string stacked(std::initializer_list<Part> parts)
{
    constexpr int side = 16;
    std::string grid;
    for (int row = 0; row < side; ++row)
        grid += std::string(side, '.') + ' ';
    for (const Part& part : parts) {
        int x = part.x;
        int y = part.y - 1;
        for (const char pixel : part.rows) {
            if (pixel == '\n') {
                x = part.x;
                ++y;
                continue;
            }
            const int place = y * (side + 1) + x;
            if (pixel != '.' && x >= 0 && x < side && y < side)
                grid[static_cast<std::size_t>(place)] = part.tint ? part.tint : pixel;
            ++x;
        }
    }
    return grid;
}

/// The two frames of a sky.
std::array<std::string, 2> framesOf(Sky sky)
{
    const Part high{cloud, 1, 1};
    const Part low{cloud, 1, 7};
    const auto below = [&](std::string_view rows, int right, int down) {
        return std::array{stacked({high, {rows, 0, 11}}), stacked({high, {rows, right, 11 + down}})};
    };
    switch (sky) {
    case Sky::clear:
        return {stacked({{straightRays, 0, 0}, {sunDisc, 3, 3}}), stacked({{slantedRays, 0, 0}, {sunDisc, 3, 3}})};
    case Sky::clearNight:
        return {stacked({{crescent, 1, 2}, {star, 10, 3}, {"\nw", 13, 8}}),
            stacked({{crescent, 1, 2}, {"\nw", 11, 4}, {star, 12, 7}})};
    case Sky::partly: return {stacked({{lowSun, 5, 1}, low}), stacked({{lowSun, 5, 1}, {cloud, 0, 7}})};
    case Sky::partlyNight: return {stacked({{lowMoon, 7, 1}, low}), stacked({{lowMoon, 7, 1}, {cloud, 0, 7}})};
    case Sky::cloudy:
        return {stacked({{cloud, 2, 2, 'c'}, {cloud, 0, 6}}), stacked({{cloud, 1, 2, 'c'}, {cloud, 1, 6}})};
    case Sky::fog: return {stacked({high, {bank, 0, 10}}), stacked({high, {bank, 1, 10}})};
    case Sky::drizzle: return below(drop, 1, 2);
    case Sky::rain: return below(drops, 1, 1);
    case Sky::snow: return below(flakes, 1, 1);
    case Sky::thunder: return {stacked({high, {lightning, 4, 8}}), stacked({high, {lightning, 5, 8}})};
    case Sky::unknown: break;
    }
    return {stacked({{dash, 2, 2}}), stacked({{dash, 2, 2}})};
}

} // namespace

const Sprite& skySprite(Sky sky)
{
    static const std::vector<Sprite> pictures = [] {
        std::vector<Sprite> all;
        for (int value = 0; value <= static_cast<int>(Sky::unknown); ++value) {
            const auto frames = framesOf(static_cast<Sky>(value));
            all.push_back(Sprite({std::string_view(frames[0]), std::string_view(frames[1])}, spritePalette()));
        }
        return all;
    }();
    return pictures.at(static_cast<std::size_t>(sky));
}

} // namespace ambrelle::quest
