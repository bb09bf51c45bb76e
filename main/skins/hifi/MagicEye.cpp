// SPDX-License-Identifier: MIT

#include "skins/hifi/MagicEye.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "skins/hifi/Cabinet.h"

#include <QConicalGradient>
#include <QRadialGradient>

#include <cmath>
#include <numbers>

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

const QColor phosphor(0x7B, 0xF0, 0x8A); // a charged battery's fan
const QColor phosphorLow(0xFF, 0xA6, 0x3C); // towards the edges, and the whole of it when low
const QColor capLight(0x33, 0x2B, 0x24);

constexpr double capShare = 0.56; // of the glass's radius
constexpr double widestShadow = 150; // degrees, when empty
constexpr double bezel = 4; // points

/// A ring between two radii that leaves out `shadow` degrees about the lowest point.
QPainterPath fan(QPointF centre, double inner, double outer, double shadow)
{
    const Box outside(centre.x() - outer, centre.y() - outer, outer * 2, outer * 2);
    const Box inside(centre.x() - inner, centre.y() - inner, inner * 2, inner * 2);
    const double start = 270 + shadow / 2;
    const double span = 360 - shadow;
    QPainterPath path;
    path.arcMoveTo(outside, start);
    path.arcTo(outside, start, span);
    path.arcTo(inside, start + span, -span);
    path.closeSubpath();
    return path;
}

QBrush light(QPointF centre, bool low)
{
    QConicalGradient gradient(centre, 270);
    const QColor body = low ? phosphorLow : phosphor;
    gradient.setColorAt(0, phosphorLow);
    gradient.setColorAt(0.28, body);
    gradient.setColorAt(0.72, body);
    gradient.setColorAt(1, phosphorLow);
    return gradient;
}

void socket(Canvas& canvas, QPointF centre, double radius)
{
    QRadialGradient ring(centre, radius, centre - QPointF(radius, radius) * 0.5);
    ring.setColorAt(0, champagne.lighter(125));
    ring.setColorAt(1, champagne.darker(190));
    canvas.disc(centre, radius, ring);
    canvas.disc(centre, radius - bezel + 1, QColor(Qt::black));
    canvas.disc(centre, radius - bezel, tubeDark);
}

void phosphorFan(Canvas& canvas, QPointF centre, double inner, double outer, double shadow, bool low)
{
    canvas.fill(fan(centre, inner, outer, 0), faded(low ? phosphorLow : phosphor, 0.13)); // never quite dark
    canvas.fill(fan(centre, inner, outer, shadow), light(centre, low));
    QRadialGradient depth(centre, outer);
    depth.setColorAt(0, faded(Qt::black, 0.75));
    depth.setColorAt(capShare, faded(Qt::black, 0.62));
    depth.setColorAt(0.8, faded(Qt::black, 0));
    depth.setColorAt(1, faded(Qt::black, 0.25));
    canvas.disc(centre, outer, depth);
}

void coverCap(Canvas& canvas, QPointF centre, double radius)
{
    QRadialGradient cap(centre, radius, centre - QPointF(radius, radius) * 0.4);
    cap.setColorAt(0, capLight);
    cap.setColorAt(1, tubeDark);
    canvas.disc(centre, radius, cap);
}

} // namespace

Box magicEye(Canvas& canvas, const Box& box, int percent, bool low)
{
    const Box square = box.square();
    const double radius = square.width() / 2;
    const double outer = radius - bezel - 1;
    const double inner = outer * capShare;
    const double shadow = widestShadow * (1 - std::clamp(percent, 0, 100) / 100.0);
    canvas.still(u"eye %1 %2"_s.arg(percent).arg(low), square.inset(-1), [&](Canvas& layer) {
        socket(layer, square.center(), radius);
        phosphorFan(layer, square.center(), inner, outer, shadow, low);
        coverCap(layer, square.center(), inner);
        QPainterPath glint;
        const Box arc = square.inset(bezel + 4);
        glint.arcMoveTo(arc, 150);
        glint.arcTo(arc, 150, -50);
        layer.stroke(glint, QPen(faded(Qt::white, 0.35), 2, Qt::SolidLine, Qt::RoundCap));
    });
    const double side = inner * 1.8;
    return square.centred(side, side);
}

} // namespace ambrelle::hifi
