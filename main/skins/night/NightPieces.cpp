// SPDX-License-Identifier: MIT

#include "skins/night/NightPieces.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"

#include <cmath>
#include <numbers>

namespace ambrelle {

QPolygonF heartBeat(const Box& box, double base, double height)
{
    constexpr std::array<QPointF, 13> shape{{{0, 0}, {0.16, 0}, {0.23, 0.10}, {0.30, 0}, {0.38, 0}, {0.43, -0.12},
        {0.5, 1}, {0.57, -beatDip}, {0.62, 0}, {0.70, 0}, {0.78, 0.15}, {0.86, 0}, {1, 0}}};
    QPolygonF points;
    for (const QPointF& point : shape)
        points.append({box.x() + box.width() * point.x(), base - height * point.y()});
    return points;
}

double beatAt(double time, const Motion& motion)
{
    const std::optional<double> phase = time > 0 ? motion.phase(time) : std::nullopt;
    return phase ? 1 + beatSwell * std::sin(*phase * std::numbers::pi) : 1;
}

std::array<QColor, 6> spectrumOf(const NightLook& look)
{
    return {look.accent, blended(look.accent, look.accent2, 0.5), look.accent2, prismViolet, look.accent3, prismGreen};
}

QPainterPath lozenge(QPointF centre, double radius, double broad)
{
    const QPointF up(0, radius);
    const QPointF out(radius * broad, 0);
    QPainterPath path = straightLine({centre - up, centre + out, centre + up, centre - out, centre - up});
    path.closeSubpath();
    return path;
}

} // namespace ambrelle
