// SPDX-License-Identifier: MIT

#include "skins/hifi/MagicEye.h"

#include "drawing/Arc.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"

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
    const double open = 1 - shadow / 360;
    return ringPiece(squareAbout(centre, outer), outer - inner, 1 - open / 2, open);
}

QBrush light(QPointF centre, bool low)
{
    const QColor body = low ? phosphorLow : phosphor;
    return conical(centre, 0.5, {{0, phosphorLow}, {0.28, body}, {0.72, body}, {1, phosphorLow}});
}

void socket(Canvas& canvas, QPointF centre, double radius)
{
    canvas.disc(centre, radius,
        radial(centre, radius, centre - QPointF(radius, radius) * 0.5,
            {{0, champagne.lighter(125)}, {1, champagne.darker(190)}}));
    canvas.disc(centre, radius - bezel + 1, QColor(Qt::black));
    canvas.disc(centre, radius - bezel, tubeDark);
}

void phosphorFan(Canvas& canvas, QPointF centre, double inner, double outer, double shadow, bool low)
{
    canvas.fill(fan(centre, inner, outer, 0), faded(low ? phosphorLow : phosphor, 0.13)); // never quite dark
    canvas.fill(fan(centre, inner, outer, shadow), light(centre, low));
    const auto shade = [](double opacity) { return faded(Qt::black, opacity); };
    canvas.disc(centre, outer,
        radial(centre, outer, {{0, shade(0.75)}, {capShare, shade(0.62)}, {0.8, shade(0)}, {1, shade(0.25)}}));
}

void coverCap(Canvas& canvas, QPointF centre, double radius)
{
    const QPointF glint = centre - QPointF(radius, radius) * 0.4;
    canvas.disc(centre, radius, radial(centre, radius, glint, {{0, capLight}, {1, tubeDark}}));
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
        const QPainterPath glint = arc(square.inset(bezel + 4), -60.0 / 360, 50.0 / 360);
        layer.stroke(glint, roundPen(faded(Qt::white, 0.35), 2));
    });
    const double side = inner * 1.8;
    return square.centred(side, side);
}

} // namespace ambrelle::hifi
