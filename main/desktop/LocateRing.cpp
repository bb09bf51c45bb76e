// SPDX-License-Identifier: MIT

#include "desktop/LocateRing.h"

#include <QPainter>

namespace ambrelle::LocateRing {

namespace {

constexpr double ringGap = 6; // between the plate and the ring
constexpr double ringWidth = 3;
constexpr double ringEdge = 1; // of the opposite lightness, so that it shows on any picture
constexpr double brightRing = 0.5; // lightness from which the accent wants a dark edge
const QColor darkRingEdge(0, 0, 0, 70);
const QColor lightRingEdge(255, 255, 255, 130);

RoundedArea ringOutset(const RoundedArea& plate, double by)
{
    return {plate.area.adjusted(-by, -by, by, by), plate.corner + by};
}

void drawRing(QPainter& painter, const RoundedArea& plate, const QPen& pen)
{
    const RoundedArea middle = ringOutset(plate, ringGap + ringWidth / 2);
    painter.setPen(pen);
    painter.drawRoundedRect(middle.area, middle.corner, middle.corner);
}

} // namespace

RoundedArea around(const RoundedArea& plate)
{
    return ringOutset(plate, ringGap + ringWidth + ringEdge);
}

void paint(QPainter& painter, const RoundedArea& plate, const QColor& accent)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    drawRing(
        painter, plate, {accent.lightnessF() > brightRing ? darkRingEdge : lightRingEdge, ringWidth + 2 * ringEdge});
    drawRing(painter, plate, {accent, ringWidth});
    painter.restore();
}

} // namespace ambrelle::LocateRing
