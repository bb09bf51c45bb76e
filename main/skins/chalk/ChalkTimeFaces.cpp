// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/chalk/ChalkMarks.h"
#include "skins/chalk/ChalkSkin.h"
#include "skins/chalk/ChalkStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace chalk;

namespace {

constexpr double dateSize = 17;
constexpr double waveHeight = 1.3;
constexpr double waveLength = 11;

/// The time again, as it is taught.
void drawnClock(Canvas& canvas, const Box& box, const ClockReading& reading, const SkinStyle& style)
{
    const Box circle = box.square().inset(bold / 2);
    const QPointF centre = circle.center();
    const double radius = circle.width() / 2;
    QPainterPath marks;
    for (int hour = 0; hour < 12; ++hour) {
        marks.moveTo(pointOn(centre, radius - 2.5, hour / 12.0));
        marks.lineTo(pointOn(centre, radius - (hour % 3 == 0 ? 6.5 : 4), hour / 12.0));
    }
    canvas.stroke(loopPath(circle), roundPen(style.ink, 1.8));
    canvas.stroke(marks, roundPen(style.soft, 1.1));
    const double minute = reading.minute / 60.0;
    canvas.line(centre, pointOn(centre, radius * 0.5, (reading.hour24 % 12 + minute) / 12), roundPen(style.ink, bold));
    canvas.line(centre, pointOn(centre, radius * 0.74, minute), roundPen(style.accent, 1.8));
}

} // namespace

void ChalkSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double clockSize = 46;
    Box box = plate(canvas, face);
    const Box line = box.cutTop(14);
    const TextStyle hand = heading(style()).sized(dateSize);
    const double width = canvas.text(line, reading.dateLine(), hand);
    const double y = box.cutTop(8).center().y() + 0.6;
    canvas.stroke(wavyLine({line.left() + 1, y}, {line.left() + width, y}, waveHeight, waveLength),
        roundPen(style().accent, usual));
    if (const QString tag = reading.tag(); !tag.isEmpty() || !reading.meridiem.isEmpty())
        named(canvas, box.cutBottom(footerHeight(style())), tag, style().caption(), reading.meridiem,
            style().header().coloured(style().ink));
    drawnClock(canvas, box.cutRight(clockSize), reading, style());
    box.setLeft(box.left() - 3); // a round digit stands under the edge of the letters above it
    canvas.figure(box, reading.time(), {}, figure(style().clockCap).kerned());
}

void ChalkSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, reading.month);
    const double y = monthCell(box, reading, 1).top();
    canvas.line({box.left(), y}, {box.right(), y}, roundPen(style().faint, usual));
    monthGrid(canvas, *this, box, reading, style().caption(), style().caption().coloured(style().ink));
}

void ChalkSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double gap = 8;
    constexpr int most = 5;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(box.width() * 0.52);
    box.cutRight(12);
    weatherNow(canvas, *this, box, reading, 50);
    dayColumns(days, reading, most, gap, [&](const Box& column, const WeatherReading::Day& day, qsizetype) {
        const double x = column.left() - gap / 2;
        canvas.stroke(
            wavyLine({x, column.top() + 4}, {x, column.bottom() - 4}, 1.2, 14), roundPen(style().faint, usual));
        dayColumn(canvas, *this, column.inset(-2, 0), day);
    });
}

void ChalkSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.day));
    const double pitch = twoLinePitch(style()) + 4;
    eventRows(canvas, *this, box, reading, pitch);
    if (reading.rows.isEmpty() || reading.rows.first().time.isEmpty())
        return;
    constexpr double indent = 11; // of a row's texts
    const TextStyle text = style().caption();
    const double width = std::min(shape(text.face, text.size, reading.rows.first().time)->width, box.width() - indent);
    const Box time(box.x() + indent, box.y() + pitch / 2 + 1, width, pitch / 2 - 1);
    canvas.stroke(loopPath(time.centred(width + 10, 15)), roundPen(style().accent3, 1.3));
}

} // namespace ambrelle
