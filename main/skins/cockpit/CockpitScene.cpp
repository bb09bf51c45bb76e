// SPDX-License-Identifier: MIT

#include "drawing/Gradients.h"
#include "drawing/Plates.h"
#include "drawing/SeededRandom.h"
#include "skins/cockpit/CockpitPieces.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double sheetMargin = 26; // around its items
constexpr double sheetCorner = 14;
constexpr double litEdgeWidth = 1.5;
constexpr double besideScreen = 6; // that stays of the desktop around a sheet
constexpr double leastRim = 6; // of a sheet beside its instruments, whatever the scale
constexpr int shadowSteps = 8;
constexpr double shadowReach = 9; // whatever the scale
constexpr int tileSize = 96;
constexpr int gradeStep = 160; // by which a sheet's gradient follows its edges
const QColor sheetTop(0x2C, 0x32, 0x38);
const QColor sheetBottom(0x1F, 0x24, 0x29);

constexpr double recessGap = 1.5; // around what is let into a sheet
constexpr double sheetScrew = 3.2; // radius
constexpr double sheetScrewPlace = 12; // from both edges

constexpr double engravedSize = 9;
constexpr double leastEngraved = 7; // points of the screen
constexpr double engravedAbove = 9.5; // from a row to the middle of its name
constexpr std::array rowNames{"FLIGHT", "ENGINE", "RADIO", "NAV"};

constexpr double lampWidth = 34;
constexpr double lampHeight = 12;
constexpr double lampGap = 4;
constexpr double lampAbove = 6.5; // of the strip above its item
constexpr double lampLetters = 7.5;
constexpr std::array lampNames{"FUEL", "HYD", "GEN", "ICE", "DOOR", "APU"};
constexpr int litLamp = 2;

QRectF outset(const QRectF& area, double by)
{
    return area.adjusted(-by, -by, by, by);
}

/// A side of a sheet ends inside the screen, or out of sight where an instrument is let in so near to the edge.
double endOf(double side, double room, double instruments, double inwards)
{
    if ((side - room) * inwards >= 0)
        return side;
    return (instruments - room) * inwards >= leastRim ? room : side - inwards * 2 * sheetCorner;
}

/// One for all items that stand so near that theirs would meet.
QList<QRectF> sheets(const SceneOrnament& on)
{
    QList<QRectF> areas;
    for (const SceneItem& item : on.items()) {
        QRectF area = outset(item.frame, on.scaled(sheetMargin));
        const auto meeting = [&] {
            return std::ranges::find_if(areas, [&](const QRectF& other) { return other.intersects(area); });
        };
        for (auto other = meeting(); other != areas.end(); other = meeting()) {
            area |= *other;
            areas.erase(other);
        }
        areas.append(area);
    }
    const QRectF room = outset(on.screen(), -std::max(besideScreen, shadowReach));
    for (QRectF& area : areas) {
        const QRectF inner = outset(area, -on.scaled(sheetMargin));
        area.setCoords(endOf(area.left(), room.left(), inner.left(), 1), endOf(area.top(), room.top(), inner.top(), 1),
            endOf(area.right(), room.right(), inner.right(), -1),
            endOf(area.bottom(), room.bottom(), inner.bottom(), -1));
    }
    areas.removeIf([&](const QRectF& area) { return !area.intersects(room); });
    return areas;
}

/// The edge that an instrument is let into.
struct Recess {
    QRectF area;
    double corner;

    bool operator==(const Recess&) const = default;
};

struct Screw {
    QPointF place;
    double turn; ///< degrees

    bool operator==(const Screw&) const = default;
};

/// What is drawn of a sheet around a tile.
struct Sheet {
    Box box; ///< as far as it is seen from the tile
    double top; ///< of the whole
    bool hasEdge; ///< which the tile meets
    QRectF graded; ///< that the gradient goes over
    QList<Recess> instruments;
    QList<Screw> screws;
    double unit;

    bool operator==(const Sheet&) const = default;
};

/// What is below the edges of a sheet, and nothing of what the sheet hides of it.
void drawShadow(Canvas& canvas, const Box& box, double corner)
{
    const QRectF whole = outset(box, shadowReach).toAlignedRect();
    const QRectF inner = outset(box, -corner).toAlignedRect();
    for (const QRectF& rim : {QRectF(whole.topLeft(), QPointF(whole.right(), inner.top())),
             QRectF(QPointF(whole.left(), inner.bottom()), whole.bottomRight()),
             QRectF(QPointF(whole.left(), inner.top()), inner.bottomLeft()),
             QRectF(inner.topRight(), QPointF(whole.right(), inner.bottom()))}) {
        canvas.paint([&](QPainter& painter) {
            painter.setClipRect(rim, Qt::IntersectClip);
            dropShadow(canvas, box, corner, Qt::black, 0.05, shadowSteps, 3);
        });
    }
}

/// Draws what lies in `metal`.
void drawSheet(Canvas& canvas, const Sheet& sheet, const QRegion& metal)
{
    const double corner = sheetCorner * sheet.unit;
    canvas.paint([&](QPainter& painter) {
        painter.setClipRegion(metal, Qt::IntersectClip);
        if (sheet.hasEdge)
            drawShadow(canvas, sheet.box, corner);
        canvas.fill(sheet.box, downwards(sheet.graded, {{0, sheetTop}, {1, sheetBottom}}), corner);
        const double edge = litEdgeWidth * sheet.unit;
        const QRectF lit({sheet.graded.left(), sheet.top}, sheet.graded.bottomRight());
        const double height = lit.height();
        if (sheet.hasEdge)
            canvas.frame(sheet.box,
                QPen(downwards(lit,
                         {{0, faded(Qt::white, 0.34)}, {std::min(0.5, corner / height), faded(Qt::white, 0.07)},
                             {1, faded(Qt::black, 0.45)}}),
                    edge),
                corner);
        for (const Recess& recess : sheet.instruments) {
            const Box cut = recess.area;
            canvas.fill(cut,
                downwards(cut, {{0, faded(Qt::black, 0.6)}, {0.9, faded(Qt::black, 0.4)}, {1, faded(Qt::white, 0.16)}}),
                recess.corner);
        }
        for (const Screw& screw : sheet.screws)
            cockpit::screw(canvas, screw.place, sheetScrew * sheet.unit, screw.turn);
    });
}

/// Where the lights above the largest instrument stand.
QRectF lampStrip(const SceneOrnament& on)
{
    const double count = static_cast<double>(lampNames.size());
    const QSizeF size(on.scaled(count * (lampWidth + lampGap) - lampGap), on.scaled(lampHeight));
    const QRectF hero = on.hero().frame;
    return {{hero.center().x() - size.width() / 2, hero.top() - on.scaled(lampAbove) - size.height()}, size};
}

/// In the corners and the middles of the edges, where nothing else is.
QList<Screw> screwsOf(const SceneOrnament& on, const QRectF& area)
{
    const double clear = on.scaled(sheetScrew) + 3;
    const QRectF line = outset(area, -on.scaled(sheetScrewPlace));
    QList<Screw> screws;
    SeededRandom random{seedOf(u"cockpit")};
    for (const double x : {line.left(), line.center().x(), line.right()}) {
        for (const double y : {line.top(), line.center().y(), line.bottom()}) {
            const QRectF place = outset({x, y, 0, 0}, clear);
            if (!place.contains(line.center()) && on.isFree(place) && !lampStrip(on).intersects(place))
                screws.append({{x, y}, random.in(0, 90)});
        }
    }
    return screws;
}

/// In tiles of the screen: of a sheet that stays as large only those change that an instrument leaves or comes to.
void addSheet(SceneOrnament& on, const QRectF& area, double bezel)
{
    const QRectF whole = outset(area, shadowReach);
    const QRegion metal = on.besideItems(whole, bezel); // what the instruments leave of it
    const QList<Screw> screws = screwsOf(on, area);
    const double gap = on.scaled(recessGap);
    const auto stepBefore = [](double edge, int step) { return static_cast<int>(std::floor(edge / step)) * step; };
    const QRectF graded({0, static_cast<double>(stepBefore(area.top(), gradeStep))},
        QPointF(1, stepBefore(area.bottom(), gradeStep) + gradeStep));
    const double beyond = shadowReach + 2 * on.scaled(sheetCorner);
    for (int top = stepBefore(whole.top(), tileSize); top < whole.bottom(); top += tileSize) {
        for (int left = stepBefore(whole.left(), tileSize); left < whole.right(); left += tileSize) {
            const QRect tile(left, top, tileSize, tileSize);
            const QRegion own = metal & tile;
            if (own.isEmpty())
                continue;
            const bool hasEdge = !outset(area, -2 * on.scaled(litEdgeWidth)).contains(tile);
            Sheet sheet{area & outset(tile, beyond), hasEdge ? area.top() : 0, hasEdge, graded, {}, {}, on.scaled(1)};
            for (const SceneItem& item : on.items()) {
                const QRectF cut = outset(item.frame, gap);
                if (cut.intersects(tile) && item.frame.intersects(area))
                    sheet.instruments.append({cut, SceneOrnament::ofFace(item, bezel) + gap});
            }
            std::ranges::copy_if(screws, std::back_inserter(sheet.screws), [&](const Screw& screw) {
                return outset({screw.place, QSizeF()}, on.scaled(sheetScrew) + 3).intersects(tile);
            });
            on.add(
                u"sheet"_s, QRectF(own.boundingRect()) & on.screen(),
                [](Canvas& canvas, const Sheet& drawn, const QRegion& part) { drawSheet(canvas, drawn, part); }, sheet,
                own);
        }
    }
}

/// Warning lights above the largest instrument, all but one dark.
void annunciators(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF strip = lampStrip(on);
    if (!on.isFree(outset(strip, 1)))
        return;
    on.reserve(outset(strip, on.scaled(lampGap)));
    on.add(
        u"annunciators"_s, outset(strip, 1),
        [](Canvas& canvas, const Box& box, const Typeface& face, double unit, const QColor& light) {
            Box rest = box;
            for (int index = 0; index < static_cast<int>(lampNames.size()); ++index) {
                const Box lamp = rest.cutLeft(lampWidth * unit);
                rest.cutLeft(lampGap * unit);
                const bool isLit = index == litLamp;
                cockpit::annunciator(canvas, lamp, isLit ? std::optional(light) : std::nullopt);
                canvas.text(lamp, QString::fromLatin1(lampNames.at(static_cast<std::size_t>(index))),
                    {.face = face,
                        .size = lampLetters * unit,
                        .colour = isLit ? light : faded(cockpit::unlit, 0.75),
                        .align = Align::centre});
            }
        },
        Box(strip), style.body, on.scaled(1), cockpit::green);
}

void engrave(SceneOrnament& on, const SkinStyle& style, const QString& text, QPointF start, const QRectF& sheet)
{
    const double size = std::max(leastEngraved, on.scaled(engravedSize));
    const double width = shape(style.title, size, text)->width + 2;
    const QRectF place(start.x(), start.y() - size / 2, width, size);
    if (!on.isFree(place) || !sheet.contains(outset(place, 2)))
        return;
    on.reserve(place);
    on.add(
        u"name"_s, outset(place, 2) & on.screen(),
        [](Canvas& canvas, const Box& line, const QString& letters, const Typeface& face, double height,
            const QColor& ink) {
            canvas.text(
                line, letters, {.face = face, .size = height, .colour = ink, .engraving = faded(Qt::black, 0.6)});
        },
        Box(place), text, style.title, size, style.soft);
}

} // namespace

/// The panel that instruments are let into, with the names of its rows and the lights above the largest one.
Scene cockpitScene(SceneOrnament on)
{
    const SkinStyle style = cockpit::makeStyle(on.accent());
    const QList<QRectF> areas = sheets(on);
    for (const QRectF& area : areas)
        addSheet(on, area, style.corner);
    annunciators(on, style);
    std::size_t row = 0;
    for (const QList<SceneItem>& items : on.rows()) {
        const QRectF& first = items.first().frame;
        const QString name = QString::fromLatin1(rowNames.at(row++ % rowNames.size()));
        for (const QRectF& area : areas) {
            const double besideScrew = area.left() + on.scaled(sheetScrewPlace + 2 * sheetScrew);
            if (area.contains(first.center()))
                engrave(on, style, name,
                    {std::max(first.left() + 2, besideScrew), first.top() - on.scaled(engravedAbove)}, area);
        }
    }
    return on.scene();
}

} // namespace ambrelle
