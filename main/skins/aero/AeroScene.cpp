// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/RGBA.h"
#include "drawing/Ribbon.h"
#include "drawing/SeededRandom.h"
#include "skins/aero/AeroPieces.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostBubbles = 14;
constexpr double bubblePitch = 90; // of the items' width for one bubble, points
constexpr double smallest = 6; // radius
constexpr double largest = 26;
constexpr double belowItems = 4; // of the uppermost bubbles
constexpr double drift = 40; // by which others hang lower
constexpr double bubbleEdge = 1.5; // that a bubble's place is larger

constexpr double ribbonWidth = 26;
constexpr double ribbonLight = 0.1; // opacity
constexpr double ribbonPitch = 46; // between their middles
constexpr double ribbonBend = 0.62; // where it begins to fall, in parts of its way to the right
constexpr double leastSweep = 120; // of a ribbon, to the right
constexpr double glassCorner = 12; // of a plate

/// A band of light that gets broader on its way and ends at the screen's right edge. Glass hides what is behind it.
void ribbonFrom(SceneOrnament& on, QPointF start, QPointF bend, QPointF end)
{
    constexpr int steps = 48;
    QPolygonF way;
    for (int step = 0; step <= steps; ++step) {
        const double t = static_cast<double>(step) / steps;
        way.append((1 - t) * (1 - t) * start + 2 * t * (1 - t) * bend + t * t * end);
    }
    const double width = on.scaled(ribbonWidth);
    QPainterPath screen;
    QRectF room = on.screen();
    room.setBottom(std::min(room.bottom(), on.bounds().bottom())); // below it are bubbles
    screen.addRect(room);
    QPainterPath light = ribbon(way, [width](double along) { return width * (0.4 + 0.6 * along); }).intersected(screen);
    for (const SceneItem& item : on.items())
        light = light.subtracted(roundedPath(item.frame, on.scaled(glassCorner)));
    if (light.isEmpty())
        return;
    const QRectF place = light.boundingRect();
    on.add(
        u"ribbon"_s, place.adjusted(-1, -1, 1, 1) & on.screen(),
        [](Canvas& canvas, const QPainterPath& shape) { canvas.fill(shape, faded(Qt::white, ribbonLight)); }, light);
}

void sweeps(SceneOrnament& on)
{
    const QRectF hero = on.hero().frame;
    const QPointF end(on.screen().right() + on.scaled(ribbonWidth), on.bounds().bottom());
    if (on.screen().right() - hero.right() < on.scaled(leastSweep))
        return;
    for (const double lower : {-0.5, 0.5}) {
        const double aside = lower * on.scaled(ribbonPitch);
        const QPointF start(hero.right(), hero.center().y() + 0.4 * aside);
        const QPointF bend(mix(start.x(), end.x(), ribbonBend), start.y() + aside);
        ribbonFrom(on, start, bend, end + QPointF(0, 2.2 * aside - 1.5 * on.scaled(ribbonPitch)));
    }
}

/// What rises to the widgets from below.
void air(SceneOrnament& on)
{
    const QRectF across = on.bounds() & on.screen();
    const int count = std::clamp(static_cast<int>(across.width() / on.scaled(bubblePitch)), 3, mostBubbles);
    for (int index = 0; index < count; ++index) {
        SeededRandom random{seedOf(u"aero") + static_cast<std::uint64_t>(index)};
        const double growth = random.in(0, 1);
        const double x = across.left() + across.width() * (index + random.in(0.1, 0.9)) / count;
        const double low = random.in(0, on.scaled(drift));
        for (double radius = smallest + (largest - smallest) * growth * growth; radius >= smallest; radius *= 0.8) {
            const double r = on.scaled(radius);
            const QPointF centre(x, across.bottom() + on.scaled(belowItems) + r + low);
            const double reach = r + bubbleEdge;
            const QRectF place = QRectF(centre, QSizeF()).adjusted(-reach, -reach, reach, reach);
            if (!on.isFree(place))
                continue;
            on.add(
                u"bubble"_s, place,
                [](Canvas& canvas, QPointF middle, double size) { aero::bubble(canvas, middle, size); }, centre, r);
            on.reserve(place);
            break;
        }
    }
}

} // namespace

/// Light that sweeps from the largest widget, and air under all of them.
Scene aeroScene(SceneOrnament on)
{
    sweeps(on);
    air(on);
    return on.scene();
}

} // namespace ambrelle
