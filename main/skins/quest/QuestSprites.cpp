// SPDX-License-Identifier: MIT

#include "skins/quest/QuestSprites.h"

#include "skins/quest/QuestStyle.h"

#include <array>
#include <cmath>
#include <string>

namespace ambrelle::quest {

namespace {

constexpr double spriteRate = 2; // frames a second

constexpr std::string_view wholeHeart = R"(
..kkk...kkk..
.krrrk.krrrk.
krwwrrkrrrrdk
krwrrrrrrrrdk
krrrrrrrrrrdk
krrrrrrrrrrdk
.krrrrrrrrdk.
..krrrrrrdk..
...krrrrdk...
....krrdk....
.....kdk.....
......k......)";

std::string heartRows(int halves)
{
    constexpr std::size_t rowLength = 14;
    constexpr std::size_t middle = 7; // after the end of the line before
    std::string rows(wholeHeart);
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const bool full = halves > (index % rowLength <= middle ? 0 : 1);
        if (!full && rows[index] != '.' && rows[index] != '\n')
            rows[index] = rows[index] == 'k' ? 'f' : 'k';
    }
    return rows;
}

} // namespace

const Sprite::Palette& spritePalette()
{
    static const Sprite::Palette palette{{'k', night}, {'w', snow}, {'g', mist}, {'c', bevel}, {'f', lost},
        {'m', QColor(0xFF, 0xF3, 0xC4)}, {'y', sunlight}, {'o', ember}, {'r', blood}, {'d', wine}, {'b', rain}};
    return palette;
}

const Sprite& heart(int halves)
{
    static const std::array hearts{Sprite(heartRows(0), spritePalette()), Sprite(heartRows(1), spritePalette()),
        Sprite(heartRows(2), spritePalette())};
    return hearts.at(static_cast<std::size_t>(halves));
}

const Sprite& hand()
{
    static const Sprite sprite(R"(
....kkkkk.......
..kkwwwwkkkkkkk.
.kwwwwwwwwwwwwwk
kwwwwwwwwwwwwwwk
kwwwwwwwwgkkkkk.
kwwwwwwwwwwk....
kwwwwwwwggk.....
kwwwwwwwwwk.....
kgwwwwwwggk.....
.kkgwwwwwk......
...kkkkkk.......)",
        spritePalette());
    return sprite;
}

const Sprite& alarm()
{
    static const Sprite sprite(R"(
.....r.....
....rrr....
....rwr....
...rrwrr...
...rrwrr...
..rrrwrrr..
..rrrwrrr..
.rrrrrrrrr.
.rrrrwrrrr.
rrrrrrrrrrr)",
        spritePalette());
    return sprite;
}

const Sprite& coin(bool earned)
{
    static const Sprite gold(R"(
..yyyy..
.yywwyo.
yywyyyyo
yywyyoyo
yywyyoyo
yyyyoyyo
.yyyyyo.
..oooo..)",
        spritePalette());
    static const Sprite place(R"(
..ffff..
.fkkkkf.
fkkkkkkf
fkkkkkkf
fkkkkkkf
fkkkkkkf
.fkkkkf.
..ffff..)",
        spritePalette());
    return earned ? gold : place;
}

Sprite note(const QColor& colour)
{
    return {R"(
..nnnnnn
..nnnnnn
..n....n
..n....n
..n....n
nnn..nnn
nnn..nnn)",
        {{'n', colour}}};
}

Sprite arrow(bool up, const QColor& colour)
{
    constexpr std::string_view upright = R"(
...aa...
..aaaa..
.aaaaaa.
aaaaaaaa
...aa...
...aa...
...aa...
...aa...)";
    const std::string turned(upright.rbegin(), upright.rend());
    return {up ? upright : std::string_view(turned), {{'a', colour}}};
}

Sprite tick(const QColor& colour)
{
    return {R"(
........tt
.......ttt
......ttt.
tt...ttt..
ttt.ttt...
.ttttt....
..ttt.....
...t......)",
        {{'t', colour}}};
}

Sprite more(const QColor& colour)
{
    return {R"(
aaaaa
.aaa.
..a..)",
        {{'a', colour}}};
}

const Sprite& chest()
{
    static const Sprite sprite(R"(
..kkkkkkkkkk..
.kllllllllllk.
klyllyllyllylk
kbybbybbybbybk
kbybbybbybbybk
kkkkkkyykkkkkk
kyyyykyykyyyyk
kbbbbkookbbbbk
kbbbbbkkbbbbbk
kbbbbbbbbbbbbk
kttttttttttttk
kkkkkkkkkkkkkk)",
        {{'k', night}, {'b', QColor(0x9A, 0x5F, 0x2E)}, {'l', QColor(0xC9, 0x86, 0x45)},
            {'t', QColor(0x6E, 0x3F, 0x1E)}, {'y', sunlight}, {'o', ember}});
    return sprite;
}

const Sprite& flag()
{
    static const Sprite sprite(R"(
kkk........
kwkkkkk....
kwkrrrrkkk.
kwkrrrrrrrk
kwkrrrrrrdk
kwkrrrrrdk.
kwkrrrrrrk.
kwkdrrrrrrk
kwkkkddrrdk
kwk..kkkkk.
kwk........
kwk........
kgk........
kgk........
kgk........
kkk........)",
        spritePalette());
    return sprite;
}

void bob(Canvas& canvas, const Sprite& sprite, const Box& box, double pixel, QPointF step, bool alive)
{
    if (!alive) {
        sprite.draw(canvas, box, pixel);
        return;
    }
    const Box rest = box.centred(sprite.size().width() * pixel, sprite.size().height() * pixel);
    const QRectF area = rest.united(rest.translated(step)).adjusted(-1, -1, 1, 1);
    canvas.moving(area, Motion::steady(spriteRate), [&](Canvas& frame, double time) {
        const bool odd = std::fmod(std::floor(time * spriteRate), 2) != 0;
        sprite.draw(frame, odd ? rest.moved(step.x(), step.y()) : rest, pixel);
    });
}

} // namespace ambrelle::quest
