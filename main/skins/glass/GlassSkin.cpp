// SPDX-License-Identifier: MIT

#include "skins/glass/GlassSkin.h"

#include "drawing/Colours.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "faces/NoticeFace.h"
#include "faces/Pictogram.h"
#include "faces/StyledDial.h"
#include "foundation/Wording.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QColor plateColour(0x1E, 0x22, 0x30);
const QColor ink(Qt::white);
const QColor soft(0xDF, 0xE4, 0xEE);
const QColor faint(0x6E, 0x76, 0x88);
const QColor accentBlue(0x6D, 0xB5, 0xFF);
const QColor accent2(0x4F, 0xDC, 0xC9); // battery, second memory part
const QColor accent3(0xFF, 0xC4, 0x6B); // sun, low battery, third memory part
const QColor up(0x6F, 0xE8, 0x9A);
const QColor down(0x6D, 0xB5, 0xFF);
const QColor warn(0xFF, 0x9A, 0x8C);

constexpr double plateAlpha = 0.72; // the least at which ink keeps its contrast over pure white
const QColor trackColour = faded(Qt::white, 0.16);
const QColor chipColour = faded(Qt::white, 0.14);

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = {.family = u"Inter"_s, .weight = 600, .capRatio = 0.73},
        .body = {.family = u"Inter"_s, .weight = 500, .capRatio = 0.73},
        .number = {.family = u"Inter Display"_s, .weight = 300, .capRatio = 0.74},
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(accentBlue),
        .up = up,
        .down = down,
        .inset = 16,
        .corner = 24,
        .titleGap = 6,
        .warn = warn,
        .ground = over(faded(plateColour, plateAlpha), Qt::white),
    };
}

PictogramPaint pictograms()
{
    return {.sun = accent3, .moon = ink, .cloud = ink, .water = accentBlue, .bolt = accent3};
}

} // namespace

GlassSkin::GlassSkin(std::optional<QColor> accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

Box GlassSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const double corner = style().corner;
    canvas.still(u"plate"_s, face.bounds.inset(-10), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, corner, Qt::black, 0.03, 8, 2);
        layer.fill(face.bounds, faded(plateColour, plateAlpha), corner);
        sheen(layer, face.bounds, corner, Qt::white, 0.16, 0.02, 0.4);
        litEdge(layer, face.bounds, corner, 1.2, 0.6, 0.12, 0.3);
    });
    return face.bounds.inset(style().inset);
}

void GlassSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    const TextStyle heading = style().header().sized(13);
    Box line = box.cutTop(14);
    const double meridiem = canvas.text(line, reading.meridiem, heading.coloured(soft).aligned(Align::right));
    line.cutRight(meridiem);
    canvas.text(line, reading.dateLine(), heading);
    canvas.text(box.cutBottom(Bands::footer), reading.tag(), style().caption().sized(12));
    canvas.figure(box, reading.time(), {}, style().figure(72));
}

void GlassSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, reading.month);
    monthGrid(canvas, box, reading,
        {.weekday = style().caption(),
            .day = style().caption().coloured(ink),
            .todayFill = style().accent,
            .todayInk = inkOn(style().accent)});
}

void GlassSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    const Box graph =
        heroAndFooter(canvas, *this, box, QString::number(reading.percent), u"%"_s, reading.load, style().figure(40));
    if (reading.high)
        warning(canvas, Box(box).cutTop(Bands::hero).cutRight(12));
    const QColor colour = reading.high ? warn : style().accent;
    const QPainterPath line = smoothLine(samplePoints(graph, reading.history, 1));
    canvas.fill(areaUnder(line, graph.bottom()), wash(graph, colour, 0.45, 0.02));
    graphLine(canvas, line, colour, 1.8);
    canvas.disc(line.currentPosition(), 2.6, colour);
}

void GlassSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.figure(box.cutTop(Bands::hero), reading.used, Wording::tr("GB"), style().figure(40));
    if (reading.high)
        warning(canvas, Box(face.bounds).inset(style().inset).cutTop(14).cutRight(12));
    const QList<QBrush> fills{style().accent, accent2, accent3};
    box.cutTop(Bands::gap);
    partsBar(canvas, box.cutTop(10), reading.parts, fills, trackColour, 5);
    box.cutTop(Bands::gap);
    partsKey(canvas, *this, box, reading.parts, fills);
}

void GlassSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    canvas.text(box.cutBottom(Bands::footer), freeText(reading), style().caption());
    const QColor colour = reading.high ? warn : style().accent;
    const StyledDial ring{.flavor = dial(), .value = colour, .track = trackColour, .width = 9};
    const Box inside = ring.draw(canvas, box.inset(0, 4), reading.fraction);
    canvas.figure(inside.inset(4), QString::number(reading.percent), u"%"_s, style().figure(26).aligned(Align::centre));
    if (reading.high)
        warning(canvas, Box(face.bounds).inset(style().inset).cutBottom(Bands::footer).cutRight(12));
}

void GlassSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    Box middle = heroAndFooter(canvas, *this, box, QString::number(reading.percent), u"%"_s,
        reading.remaining.isEmpty() ? reading.state : reading.remaining, style().figure(36));
    if (reading.low)
        warning(canvas, Box(box).cutTop(Bands::hero).cutRight(12));
    const Box body = Box(middle.x(), middle.center().y() - 20, 96, 40);
    const QColor fill = reading.low ? accent3 : accent2;
    canvas.fill(body, trackColour, 12);
    QPainterPath outline;
    outline.addRoundedRect(body, 12, 12);
    QPainterPath charge;
    charge.addRect(Box(body).cutLeft(body.width() * reading.level));
    canvas.fill(outline.intersected(charge), fill);
    canvas.fill(Box(body.right() + 3, body.center().y() - 6, 4, 12), trackColour, 2);
    if (reading.onMains)
        canvas.symbol(body, reading.charging ? u"bolt.fill"_s : u"powerplug.fill"_s, 22, inkOn(fill));
}

void GlassSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    Box figures = box.cutTop(34);
    const FigureStyle figure = style().figure(26);
    markedFigure(canvas, figures.column(0, 2, 12), u"arrow.down"_s, style().accentText(), reading.down, figure);
    markedFigure(canvas, figures.column(1, 2, 12), u"arrow.up"_s, up, reading.up, figure);
    box.cutTop(Bands::gap);
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(style().accent, 0.28));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(up, 0.28));
    canvas.rule(Box(box.x(), lines.middle - 1, box.width(), 2), trackColour, 1);
    graphLine(canvas, lines.upper, style().accent, 1.8);
    graphLine(canvas, lines.lower, up, 1.8);
}

void GlassSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    const Box middle =
        heroAndFooter(canvas, *this, box, reading.down.value, reading.down.unit, reading.hint, style().figure(32));
    Box rest = middle;
    markedFigure(canvas, rest.cutTop(24), u"arrow.up"_s, up, reading.up, style().figure(16));
    capsule(canvas, rest.centred(rest.width(), 4), reading.share, trackColour, style().accent);
}

void GlassSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    rows(box, std::min<qsizetype>(reading.rows.size(), 5), 20, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        const Box chip = line.cutLeft(16).centred(16, 16);
        canvas.fill(chip, chipColour, 8);
        canvas.symbol(chip, u"macwindow"_s, 10, ink);
        line.cutLeft(6);
        const double value = canvas.text(line, process.percent, style().rowValue());
        line.cutRight(value + 6);
        canvas.text(line, process.name, style().row());
    });
}

void GlassSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(box.width() * 0.56);
    box.cutRight(12);
    canvas.text(box.cutBottom(Bands::footer), reading.range(), style().caption());
    canvas.text(box.cutBottom(18), reading.description, style().row());
    drawPictogram(canvas, box.cutRight(40), reading.sky, pictograms());
    canvas.figure(box, reading.temperature, u"°"_s, style().figure(50));

    const int count = static_cast<int>(std::min<qsizetype>(reading.days.size(), 6));
    for (int index = 0; index < count; ++index) {
        const WeatherReading::Day& day = reading.days[index];
        Box column = days.column(index, 6, 2);
        const TextStyle caption = style().caption().aligned(Align::centre);
        canvas.text(column.cutTop(16), day.initial, caption);
        drawPictogram(canvas, column.cutTop(22).centred(18, 18), day.sky, pictograms());
        canvas.text(column.cutTop(18), day.high, caption.coloured(ink));
        canvas.text(column.cutBottom(16), day.low, caption);
        const Box track = column.centred(4, column.height() - 4);
        canvas.fill(track, trackColour, 2);
        const double top = track.bottom() - track.height() * day.highFraction;
        const double bottom = track.bottom() - track.height() * day.lowFraction;
        canvas.fill(Box(track.x(), top, 4, std::max(4.0, bottom - top)), accent3, 2);
    }
}

void GlassSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    eventRows(canvas, *this, framed(canvas, face, reading.day), reading, 36);
}

void GlassSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    const Box cover = box.cutLeft(122).centred(122, 122);
    artwork(canvas, cover, reading.artwork, 14, chipColour, soft);
    canvas.frame(cover, QPen(faded(Qt::white, 0.2), 1), 14);
    box.cutLeft(16);
    box = box.inset(0, 8);
    const TextStyle title = style().header().sized(14);
    trackTexts(canvas, box.cutTop(44), reading, title, style().caption().sized(12));
    drawControls(canvas, box.cutBottom(26).centred(3 * 44, 26), 22, ink, reading.playing);
    Box times = box.cutBottom(18);
    canvas.text(times, reading.elapsed, style().caption());
    canvas.text(times, reading.total, style().caption().aligned(Align::right));
    capsule(canvas, box.cutBottom(4), reading.progress, trackColour, ink);
}

} // namespace ambrelle
