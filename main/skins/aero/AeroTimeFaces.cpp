// SPDX-License-Identifier: MIT

#include "drawing/DeviceImage.h"
#include "drawing/Gradients.h"
#include "faces/FaceKit.h"
#include "skins/aero/AeroPieces.h"
#include "skins/aero/AeroSkin.h"
#include "skins/aero/AeroStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace aero;

namespace {

constexpr double reflection = 0.4; // of a cover's height, seen in the table below it

/// Bubbles that have risen beside the time.
void bubbleStream(Canvas& canvas, const Box& box)
{
    const auto at = [&](double across, double down, double radius) {
        bubble(canvas, {box.left() + box.width() * across, box.top() + box.height() * down}, radius);
    };
    at(0.56, 0.2, 15);
    at(0.16, 0.45, 7);
    at(0.72, 0.56, 9);
    at(0.4, 0.72, 4);
    at(0.62, 0.86, 5.5);
    at(0.3, 0.93, 2.5);
}

/// A cover under glass that catches the light in its upper left half.
void glazed(Canvas& canvas, const SkinStyle& style, const Box& box, const Picture& picture)
{
    constexpr double radius = 7;
    artwork(canvas, box, picture, radius, faded(deep, 0.5), style.soft);
    QPainterPath light(box.topLeft());
    light.lineTo(box.topRight());
    light.quadTo(box.center(), box.bottomLeft() - QPointF(0, box.height() * 0.12));
    light.closeSubpath();
    canvas.fill(light.intersected(roundedPath(box, radius)),
        linear(box.topLeft(), box.center(), {{0, faded(sky, 0.5)}, {1, faded(sky, 0.08)}}));
    canvas.frame(box, QPen(faded(sky, 0.6), 1), radius);
}

/// What `draw` shows above the line `y`, upside down below it and fading.
void mirroredBelow(Canvas& canvas, const Box& below, const std::function<void(Canvas&)>& draw)
{
    canvas.paint([&](QPainter& painter) {
        const QRect pixels = devicePixels(painter, below);
        const QImage image = deviceImage(painter, pixels, [&](QPainter& mirror) {
            mirror.save();
            mirror.translate(0, 2 * below.top());
            mirror.scale(1, -1);
            Canvas upsideDown(mirror, {});
            draw(upsideDown);
            mirror.restore();
            mirror.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            mirror.fillRect(below, wash(below, Qt::black, 0.5, 0));
        });
        paintDeviceImage(painter, pixels.topLeft(), image);
    });
}

} // namespace

void AeroSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    const double side = std::min(box.width(), box.height() / (1 + reflection));
    const Box art(box.x(), box.y(), side, side);
    const Box table(art.x(), art.bottom() + 1, side, side * reflection - 1);
    canvas.still(
        u"cover"_s, box,
        [&](Canvas& layer) {
            glazed(layer, style(), art, picture);
            mirroredBelow(layer, table, [&](Canvas& mirror) { glazed(mirror, style(), art, picture); });
        },
        picture.image);
}

void AeroSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double streamWidth = 56;
    constexpr double line = 3;
    constexpr double bearing = 5; // of the first digit, which stands above the date
    Box box = plate(canvas, face);
    const Box first = box.cutTop(14);
    box.cutTop(style().titleGap);
    const TextStyle date = style().header().sized(13).shadowed(drop, {0, 1});
    {
        const GroundScope ground(canvas, glassAt(headerHeight));
        named(canvas, first, reading.dateLine(), date, reading.meridiem, date);
    }
    if (const Box seconds = box.cutBottom(line); reading.second) {
        canvas.ticking(
            seconds.inset(-1), [&](Canvas& layer) { gelBar(layer, seconds, *reading.second / 59.0, style().accent); });
    }
    box.cutBottom(5);
    canvas.text(box.cutBottom(14), reading.tag(), style().caption().sized(12));
    const Box stream = box.cutRight(streamWidth);
    canvas.still(u"stream"_s, stream.inset(-2), [&](Canvas& layer) { bubbleStream(layer, stream); });
    box.setLeft(box.left() - bearing);
    canvas.still(
        u"time"_s, box,
        [&](Canvas& layer) { layer.figure(box, reading.time(), {}, figure(style().clockCap).kerned()); },
        reading.time());
}

void AeroSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 172;
    constexpr double picture = 46;
    constexpr int most = 6;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(daysWidth);
    box.cutRight(12);
    weatherNow(canvas, *this, box, reading, picture);
    if (reading.days.isEmpty())
        return;
    canvas.still(u"days"_s, days.inset(-1), [&](Canvas& layer) { well(layer, days, 8); });
    dayColumns(days.inset(5, 5), reading, most, 2,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void AeroSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 14;
    constexpr double keyHeight = 32;
    constexpr double keyPitch = 46;
    Box box = plate(canvas, face);
    const double side = box.height() / (1 + reflection);
    cover(canvas, Box(box).cutLeft(side), reading.artwork);
    box.setLeft(box.left() + side - box.height()); // where the cover would be a square as high as the face
    const PlayerPlaces places = playerPlaces(box, keyHeight);
    trackLines(canvas, *this, places, reading, style().header().sized(titleSize));
    controls(canvas, *this, places.controls.centred(3 * keyPitch, keyHeight), reading.playing);
}

} // namespace ambrelle
