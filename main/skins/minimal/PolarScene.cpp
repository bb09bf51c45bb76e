// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/minimal/MinimalLook.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int starCount = 40;
constexpr int mostDraws = 400; // where items leave little sky
constexpr double starReach = 60; // beyond all items, points
constexpr double starGap = 3;
constexpr double linkWidth = 0.8;
constexpr double linkInk = 0.18;
constexpr double linkDot = 2;
constexpr double linkStarInk = 0.75;
constexpr double linkGap = 10; // from an item to its star

constexpr double curtainRise = 12; // of its middle over its ends
constexpr double curtainHeight = 78; // of its rays
constexpr double hemDepth = 9; // of the light below its brightest line
constexpr double curtainGap = -8; // above the hero: the light rises from behind it
constexpr double leastCurtain = 24;
constexpr double curtainReach = 64; // beside the hero
constexpr double curtainInk = 0.3; // of its brightest line
constexpr double rayPitch = 3; // between its upright strips
constexpr double rayWidth = 22; // from one ray to the next

/// How bright the rays are at the strips from the left end to the right one, 0 to 1; both ends fade out.
QList<double> brightness(double width)
{
    SeededRandom random{seedOf(u"polar-aurora")};
    const int count = static_cast<int>(width / rayPitch);
    QList<double> strips;
    double before = random.in(0.5, 1);
    double next = random.in(0.5, 1);
    double along = 0;
    for (int strip = 0; strip < count; ++strip) {
        for (along += rayPitch / rayWidth; along >= 1; along -= 1)
            before = std::exchange(next, random.in(0.5, 1));
        const double part = (strip + 0.5) / count;
        const double ends = std::clamp(3 * std::min(part, 1 - part), 0.0, 1.0);
        strips.append(std::lerp(before, next, along * along * (3 - 2 * along)) * ends * ends);
    }
    return strips;
}

/// `hem` is the height of the light below its brightest line, `rise` that of the arc.
void drawCurtain(Canvas& canvas, const QRectF& sky, double hem, double rise, const QColor& low, const QColor& high)
{
    const QList<double> strips = brightness(sky.width());
    const double height = sky.height() - rise;
    const double brightest = 1 - hem / height;
    canvas.paint([&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, false); // no seams between strips
        const QRectF shown = painter.clipBoundingRect(); // a gradient costs more than what it fills
        for (qsizetype index = 0; index < strips.size(); ++index) {
            const double aside = 2 * (static_cast<double>(index) + 0.5) / static_cast<double>(strips.size()) - 1;
            const Box strip(
                sky.left() + static_cast<double>(index) * rayPitch, sky.top() + rise * aside * aside, rayPitch, height);
            if (!shown.intersects(strip))
                continue;
            const double light = curtainInk * strips[index];
            painter.fillRect(strip,
                downwards(strip,
                    {{0, faded(high, 0)}, {0.4 * brightest, faded(high, 0.2 * light)},
                        {0.8 * brightest, faded(blended(low, high, 0.4), 0.6 * light)}, {brightest, faded(low, light)},
                        {(1 + brightest) / 2, faded(low, 0.35 * light)}, {1, faded(low, 0)}}));
        }
    });
}

/// One arc of northern light over the hero: bright along its hem, fading upwards.
void curtain(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF hero = on.hero().frame;
    const double foot = hero.top() - on.scaled(curtainGap);
    const double height = std::min(foot - 8, on.scaled(hemDepth + curtainRise + curtainHeight));
    const double part = height / on.scaled(hemDepth + curtainRise + curtainHeight);
    const double reach = on.scaled(curtainReach);
    const QRectF area = QRectF(hero.left() - reach, foot - height, hero.width() + 2 * reach, height).toAlignedRect()
        & on.screen().adjusted(4, 0, -4, -4).toAlignedRect();
    if (height < on.scaled(leastCurtain) || area.width() < on.scaled(120) || area.bottom() < foot)
        return;
    on.add(
        u"aurora"_s, area.adjusted(-4, -4, 4, 4),
        [](Canvas& canvas, const QRectF& sky, double hem, double rise, const QColor& low, const QColor& high) {
            drawCurtain(canvas, sky, hem, rise, low, high);
        },
        area, part * on.scaled(hemDepth), part * on.scaled(curtainRise), style.accent, style.accent2);
}

void stars(SceneOrnament& on)
{
    const double reach = on.scaled(starReach);
    const QRectF sky = on.bounds().adjusted(-reach, -reach, reach, reach) & on.screen();
    const double gap = on.scaled(starGap);
    SeededRandom random{seedOf(u"polar")};
    int placed = 0;
    for (int draw = 0; draw < mostDraws && placed < starCount; ++draw) { // each stays where it is while widgets move
        const double x = random.in(0, on.screen().width());
        const double y = random.in(0, on.screen().height());
        const double radius = on.scaled(random.in(0.5, 1.3));
        const QColor light = faded(Qt::white, random.in(0.2, 0.6));
        if (sky.contains(x, y) && on.isFree(QRectF(x - gap, y - gap, 2 * gap, 2 * gap))
            && on.dot(u"star"_s, {x, y}, radius, light))
            ++placed;
    }
}

/// Every item is linked to the nearest one that already is, from the hero on.
void constellation(SceneOrnament& on)
{
    const QPen pen = roundPen(faded(Qt::white, linkInk), on.scaled(linkWidth));
    QList<SceneItem> linked{on.hero()};
    QList<SceneItem> waiting = on.satellites();
    while (!waiting.isEmpty()) {
        QLineF shortest;
        qsizetype nearest = 0;
        SceneItem from = linked.first();
        for (qsizetype index = 0; index < waiting.size(); ++index) {
            for (const SceneItem& item : std::as_const(linked)) {
                const QLineF way(item.frame.center(), waiting[index].frame.center());
                if (shortest.isNull() || way.length() < shortest.length()) {
                    shortest = way;
                    nearest = index;
                    from = item;
                }
            }
        }
        const SceneItem to = waiting.takeAt(nearest);
        linked.append(to);
        if (from.frame.intersects(to.frame))
            continue;
        const QLineF gap(SceneLayout::edge(from, to.frame.center()), SceneLayout::edge(to, from.frame.center()));
        const double apart = on.scaled(linkGap);
        QPainterPath link(gap.p1());
        link.lineTo(gap.p2());
        link = on.outside(link, 1, 4);
        if (!link.isEmpty())
            on.addAlong(
                u"link"_s, link, 3,
                [](Canvas& canvas, const QPainterPath& way, const QPen& ink) { canvas.stroke(way, ink); }, link, pen);
        if (gap.length() < 5 * apart) {
            on.dot(u"link-star"_s, gap.center(), on.scaled(linkDot), faded(Qt::white, linkStarInk));
        } else {
            for (const double part : {apart / gap.length(), 1 - apart / gap.length()})
                on.dot(u"link-star"_s, gap.pointAt(part), on.scaled(linkDot), faded(Qt::white, linkStarInk));
        }
    }
}

} // namespace

/// A clear night: a constellation of all items, stars around them, and a curtain of light over the largest.
Scene polarScene(SceneOrnament on)
{
    const SkinStyle style = MinimalLook::original(Skin::polar).accented(on.accent()).style();
    curtain(on, style);
    constellation(on);
    stars(on);
    return on.scene();
}

} // namespace ambrelle
