// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/night/NightLook.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QColor railMetal(0x8A, 0x8A, 0x90);

constexpr double fromRows = 16; // of the thin rail, points
constexpr double thinRail = 1;
constexpr double thickRail = 3;
constexpr double betweenRails = 6;
constexpr double chamferShift = 0.41421; // tan 22.5 degrees: of a corner, for each point between parallels
constexpr double railFades = 0.05; // of its length, at either end

constexpr int shiftLamps = 12;
constexpr double shiftPitch = 14;
constexpr double shiftRadius = 4;
constexpr double shiftInk = 0.8;
constexpr double aboveHero = 15; // of their middles
constexpr double lampRoom = 30; // between the hero and the rail
constexpr double besideLamps = 10;

constexpr double sectorSize = 9;
constexpr double sectorGap = 5;

/// The row of lamps with its air; flat even where it has no room.
QSizeF lampStrip(const SceneOrnament& on)
{
    return {on.scaled((shiftLamps - 1) * shiftPitch + 2 * (shiftRadius + besideLamps)), on.scaled(2 * shiftRadius + 2)};
}

/// How far the thin rail is to stay inside the screen, so that there is room for both.
double railsFromEdge(const SceneOrnament& on)
{
    return 2 + on.scaled(betweenRails + thickRail);
}

/// A rail along the upper or lower outline of all items: level at either side of the hero and above or below it, with
/// chamfers between. Levels grow away from the items.
class Rail {
public:
    Rail(const SceneOrnament& on, bool isLower)
        : m_down(isLower ? 1 : -1)
        , m_air(on.scaled(fromRows))
    {
        const QRectF hero = on.hero().frame;
        m_middle = levelOf(hero) + (isLower ? 0 : on.scaled(lampRoom - fromRows));
        if (const double most = -railsFromEdge(on);
            !isLower && most > lampStrip(on).height() / 2 + on.scaled(aboveHero) - hero.top())
            m_middle = std::min(m_middle, most); // both rails are to be seen over the lamps
        for (const SceneItem& item : on.satellites()) {
            if (item.frame.left() < hero.right() && item.frame.right() > hero.left())
                m_middle = std::max(m_middle, levelOf(item.frame));
        }
        m_left = sideOf(on, 1);
        m_right = sideOf(on, -1);
        const auto dip = [&](const Side& side) { return std::max(0.0, side.level - m_middle); };
        if (dip(m_left) + dip(m_right) > m_right.corner - m_left.corner - lampStrip(on).width()) {
            m_middle = std::max(m_left.level, m_right.level); // no room to come down to the hero
            m_left = sideOf(on, 1);
            m_right = sideOf(on, -1);
        }
    }

    /// The course so many points farther out.
    QPolygonF at(double out) const
    {
        QPolygonF points{{m_left.end, m_left.level}};
        for (const auto& [side, inwards] : {std::pair(m_left, 1.0), std::pair(m_right, -1.0)}) {
            const double step = side.level - m_middle;
            const double shift = inwards * (step > 0 ? out : -out) * chamferShift;
            QPolygonF chamfer{
                {side.corner + shift, side.level}, {side.corner + inwards * std::abs(step) + shift, m_middle}};
            if (inwards < 0)
                std::ranges::reverse(chamfer);
            if (step != 0)
                points += chamfer;
        }
        points.append({m_right.end, m_right.level});
        for (QPointF& point : points)
            point.setY(m_down * (point.y() + out));
        return points;
    }
    double besideHero(double out) const { return m_down * (m_middle + out); }

private:
    struct Side {
        double end; ///< of the rail
        double corner; ///< where its chamfer begins
        double level;
    };

    double levelOf(const QRectF& frame) const { return (m_down > 0 ? frame.bottom() : -frame.top()) + m_air; }

    /// `inwards` is 1 on the left. Before the hero the rail comes to its level, or over the hero where items that stand
    /// higher reach so near; it runs straight where there is no room to rise.
    Side sideOf(const SceneOrnament& on, double inwards) const
    {
        const auto outer = [inwards](const QRectF& frame) { return inwards > 0 ? frame.left() : -frame.right(); };
        const auto inner = [inwards](const QRectF& frame) { return inwards > 0 ? frame.right() : -frame.left(); };
        const double hero = outer(on.hero().frame);
        const double end = outer(on.bounds());
        double past = end; // of the items that stand higher
        std::optional<double> level;
        for (const SceneItem& item : on.items()) {
            if (outer(item.frame) >= hero)
                continue;
            level = std::max(level.value_or(levelOf(item.frame)), levelOf(item.frame));
            if (levelOf(item.frame) > m_middle)
                past = std::max(past, inner(item.frame));
        }
        const double rise = m_middle - level.value_or(m_middle);
        const double corner = rise > 0 ? hero - m_air - rise : std::max(past, hero + rise);
        const bool isStraight = corner < end;
        return {inwards * end, inwards * corner, isStraight ? m_middle : level.value_or(m_middle)};
    }

    double m_down;
    double m_air;
    double m_middle;
    Side m_left{};
    Side m_right{};
};

void lamps(SceneOrnament& on, const NightLook& look)
{
    const QRectF hero = on.hero().frame;
    const QPointF middle(hero.center().x(), hero.top() - on.scaled(aboveHero));
    const QSizeF size = lampStrip(on);
    const QRectF strip(middle - QPointF(size.width(), size.height()) / 2, size);
    if (!on.isFree(strip))
        return;
    const std::array zones{look.accent3, look.accent2, look.warn};
    for (int index = 0; index < shiftLamps; ++index) {
        const QPointF place = middle + QPointF(on.scaled(shiftPitch) * (index - (shiftLamps - 1) / 2.0), 0);
        const QColor& zone = zones[static_cast<std::size_t>(index * 3 / shiftLamps)];
        on.dot(u"lamp"_s, place, on.scaled(shiftRadius), faded(zone, shiftInk));
    }
    on.reserve(strip);
}

/// The names of the sectors under the lower rail: at its ends, and below the hero.
void sectors(SceneOrnament& on, const NightLook& look, const Rail& rail)
{
    const double out = on.scaled(betweenRails + thickRail / 2 + sectorGap);
    const QPolygonF course = rail.at(out);
    const SkinStyle style = look.style();
    const TextStyle small = style.header().sized(std::max(style.floor, on.scaled(sectorSize))).coloured(look.soft);
    const double width = 3 * small.size;
    const auto name = [&](const QString& text, QPointF corner, Align align) {
        const double x = align == Align::left ? 0 : align == Align::right ? width : width / 2;
        on.label(u"sector"_s, Box(corner.x() - x, corner.y(), width, small.size), text, small.aligned(align));
    };
    name(u"S1"_s, course.first(), Align::left);
    name(u"S2"_s, {on.hero().frame.center().x(), rail.besideHero(out)}, Align::centre);
    name(u"S3"_s, course.last(), Align::right);
}

} // namespace

/// A track around the widgets: guard rails, the shift lights over the largest one, and its three sectors.
Scene carbonScene(SceneOrnament on)
{
    const NightLook look = NightLook::of(Skin::carbon, on.accent());
    lamps(on, look);
    const QColor gone = faded(railMetal, 0);
    for (const bool isLower : {false, true}) {
        const Rail rail(on, isLower);
        for (const auto& [out, width] : {std::pair(0.0, thinRail), std::pair(betweenRails, thickRail)}) {
            const QPolygonF course = rail.at(on.scaled(out));
            const QPainterPath path = on.onScreen(straightLine(course), railsFromEdge(on) - on.scaled(out));
            const QBrush metal = linear({course.first().x(), 0}, {course.last().x(), 0},
                {{0, gone}, {railFades, railMetal}, {1 - railFades, railMetal}, {1, gone}});
            on.line(u"rail"_s, path, flatPen(metal, on.scaled(width)));
        }
        if (isLower)
            sectors(on, look, rail);
    }
    return on.scene();
}

} // namespace ambrelle
