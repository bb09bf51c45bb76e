// SPDX-License-Identifier: MIT

#include "drawing/Sprite.h"
#include "foundation/Wording.h"
#include "skins/classic/ClassicStyle.h"
#include "skins/SceneRecipes.h"

#include <QRegion>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double stripHeight = 22; // with its base line; all in dots
constexpr double firstWord = 16;
constexpr double betweenWords = 20;
constexpr double iconSize = 32;
constexpr double iconDot = 2; // a side of the squares that it is made of
constexpr double labelRoom = 60; // for its name
constexpr double labelGap = 4; // from the icon
constexpr double iconGap = 14; // to what stands above
constexpr double iconStep = 8; // by which it moves to where there is room
constexpr double fromRight = 16;
constexpr double shadowReach = 3; // one dot more than the shadow of a window itself

constexpr auto floppy = "###############. "
                        "#oo#oooooo##oo## "
                        "#oo#oooooo##ooo# "
                        "#oo#oooooo##ooo# "
                        "#oo#########ooo# "
                        "#oooooooooooooo# "
                        "#oooooooooooooo# "
                        "#oo##########oo# "
                        "#oo#oooooooo#oo# "
                        "#oo#o######o#oo# "
                        "#oo#oooooooo#oo# "
                        "#oo#o####ooo#oo# "
                        "#oo#oooooooo#oo# "
                        "#oo#oooooooo#oo# "
                        "#oo#oooooooo#oo# "
                        "################ ";

constexpr auto bin = "......#####..... "
                     "......#ooo#..... "
                     ".############### "
                     ".#ooooooooooooo# "
                     ".############### "
                     "..#ooooooooooo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#oo#oo#oo#oo#. "
                     "..#ooooooooooo#. "
                     "..#############. ";

const Sprite& pictureOf(bool isBin)
{
    static const std::array pictures{
        Sprite(floppy, {{'#', classic::ink}, {'o', classic::paper}}),
        Sprite(bin, {{'#', classic::ink}, {'o', classic::paper}}),
    };
    return pictures.at(isBin ? 1 : 0);
}

/// Points of a dot: a whole number, as that of a letter's squares.
double dotOf(const SceneOrnament& on)
{
    return std::max(1.0, std::round(on.scaled(1)));
}

/// What is left of an area outside the items, in whole points.
QList<QRectF> besideItems(const SceneOrnament& on, const QRectF& area)
{
    QRegion rest = QRegion(area.toAlignedRect()) & on.screen().toRect();
    for (const SceneItem& item : on.items())
        rest -= item.frame.toAlignedRect();
    return {rest.begin(), rest.end()};
}

void printed(SceneOrnament& on, const QString& name, const QRectF& area, const QColor& colour)
{
    const QList<QRectF> pieces = besideItems(on, area);
    QRectF place;
    for (const QRectF& piece : pieces)
        place |= piece;
    if (!pieces.isEmpty()) {
        on.add(
            name, place,
            [](Canvas& canvas, const QList<QRectF>& all, const QColor& ink) {
                for (const QRectF& each : all)
                    canvas.fill(Box(each), ink);
            },
            pieces, colour);
    }
}

void hardShadows(SceneOrnament& on)
{
    const double reach = shadowReach * dotOf(on);
    for (const SceneItem& item : on.items())
        printed(on, u"shadow"_s, item.frame.translated(reach, reach), classic::ink);
}

/// The strip along the screen's upper edge; windows may stand on it.
void classicMenus(SceneOrnament& on, const TextStyle& text)
{
    const double dot = dotOf(on);
    QRectF strip(0, 0, on.screen().width(), (stripHeight - 1) * dot);
    printed(on, u"menu-strip"_s, strip, classic::paper);
    printed(on, u"menu-line"_s, {0, strip.bottom(), strip.width(), dot}, classic::ink);
    double x = firstWord * dot;
    for (const QString& word : {Wording::tr("File"), Wording::tr("Edit"), Wording::tr("View"), Wording::tr("Window")}) {
        const double width = std::ceil(shape(text.face, text.size, word)->width) + 2;
        on.label(u"menu"_s, {x, 0, width, strip.height()}, word, text);
        x += width + betweenWords * dot;
    }
    on.reserve(strip.adjusted(0, 0, 0, dot));
}

/// Where two icons lie below each other at the screen's right edge: below the item, or as low as there is room.
std::optional<Box> roomForIcons(const SceneOrnament& on, const QSizeF& size)
{
    const double dot = dotOf(on);
    const double x = std::floor(on.screen().right() - size.width() - fromRight * dot);
    const double lowest = std::floor(on.screen().bottom() - size.height() - iconGap * dot);
    const auto isRoom = [&](double y) { return on.isFree(Box({QPointF(x, y), size}).inset(-shadowReach * dot)); };
    for (double y = std::ceil(on.items().last().frame.bottom() + iconGap * dot); y <= lowest; y += iconStep * dot) {
        if (isRoom(y))
            return Box({QPointF(x, y), size});
    }
    for (double y = lowest; y > stripHeight * dot; y -= iconStep * dot) {
        if (isRoom(y))
            return Box({QPointF(x, y), size});
    }
    return std::nullopt;
}

/// A picture with its name on a white label.
void deskIcon(SceneOrnament& on, const Box& place, const QString& word, bool isBin)
{
    on.add(
        u"icon"_s, place,
        [](Canvas& canvas, const Box& box, const QString& name, bool which, double unit) {
            Box rest = box;
            pictureOf(which).draw(canvas, rest.cutTop(iconSize * unit), iconDot * unit);
            rest.cutTop(labelGap * unit);
            rest = rest.cutTop(classic::line * unit);
            const TextStyle letters = classic::style().row().sized(classic::textSize * unit).aligned(Align::centre);
            const double width = std::ceil(shape(letters.face, letters.size, name)->width) + 6 * unit;
            const Box label = rest.centred(std::min(rest.width(), std::ceil(width / 2) * 2), rest.height());
            canvas.fill(label, classic::paper);
            canvas.text(label, name, letters);
        },
        place, word, isBin, dotOf(on));
}

/// What lies on the desk.
void deskIcons(SceneOrnament& on, const TextStyle& text)
{
    const double dot = dotOf(on);
    const QStringList names{Wording::tr("Disk"), Wording::tr("Bin")};
    double width = labelRoom * dot;
    for (const QString& name : names)
        width = std::max(width, std::ceil(shape(text.face, text.size, name)->width) + 8 * dot);
    const double height = (iconSize + labelGap + classic::line) * dot;
    const std::optional<Box> room = roomForIcons(on, {width, 2 * height + iconGap * dot});
    if (!room)
        return;
    Box rest = *room;
    deskIcon(on, rest.cutTop(height), names.first(), false);
    deskIcon(on, rest.cutBottom(height), names.last(), true);
}

} // namespace

/// A desk with what belongs on it: a strip of menus, a disk, a bin.
Scene classicScene(SceneOrnament on)
{
    const SkinStyle style = classic::style();
    on.drawLike(style);
    const TextStyle text = style.row().sized(classic::textSize * dotOf(on));
    classicMenus(on, style.header().sized(text.size));
    hardShadows(on);
    deskIcons(on, text);
    return on.scene();
}

} // namespace ambrelle
