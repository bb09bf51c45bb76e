// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/neon/NeonPieces.h"
#include "skins/neon/NeonSkin.h"
#include "skins/neon/NeonStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace neon;

namespace {

constexpr double dateSize = 17;
constexpr double trackSize = 18;
constexpr double tagShare = 0.6; // of the clock's width
constexpr double gutter = 12;

} // namespace

void NeonSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    const QString date = reading.dateLine();
    named(canvas, box.cutTop(headerHeight).moved(0, -headerRise), date,
        lettering(style(), date, dateSize, style().accent), reading.meridiem,
        lettering(style(), reading.meridiem, dateSize, style().accent2));
    box.cutTop(12);
    polished(canvas, box.cutTop(style().clockCap), {reading.time(), {}}, figure(style().clockCap).kerned());
    box.cutTop(9);
    const Box tag = Box(box).cutBottom(footerHeight(style())).cutRight(box.width() * tagShare);
    if (const double width = canvas.text(tag, reading.tag(), style().caption().aligned(Align::right)); width > 0)
        box.cutRight(width + gutter);
    box.cutBottom(2);
    canvas.still(u"sunset"_s, box, [&](Canvas& layer) { sunset(layer, box, style().accent3, style().accent); });
}

void NeonSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 150;
    constexpr int most = 5;
    constexpr double picture = 42;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(daysWidth);
    const Box between = box.cutRight(2 * gutter);
    if (!reading.days.isEmpty())
        canvas.fill(between.inset(gutter - 0.5, 4), trackColour);
    // Level with the lines of the days.
    const double line = style().captionSize + 6;
    canvas.text(box.cutBottom(line), reading.range(), style().caption());
    canvas.text(box.cutBottom(line), reading.description, style().row());
    box.cutTop(line);
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(gutter); // the sign leans over
    polished(canvas, box, {reading.temperature, u"°"_s}, figure(style().temperatureCap));
    dayColumns(days, reading, most, 2,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void NeonSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double keyPitch = 44;
    const PlayerPlaces places = playerPlaces(plate(canvas, face));
    cover(canvas, places.cover, reading.artwork);
    trackLines(canvas, *this, places, reading, script(style(), reading.title, trackSize));
    controls(canvas, *this, places.controls.centred(3 * keyPitch, places.controls.height()), reading.playing);
}

} // namespace ambrelle
