// SPDX-License-Identifier: MIT

#include "skins/plain/PlainSkin.h"

#include "drawing/Colours.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "faces/NoticeFace.h"
#include "faces/Pictogram.h"
#include "faces/StyledDial.h"
#include "foundation/Wording.h"
#include "skins/plain/PlainPalette.h"

#include <cstring>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double pixelFont = 16; // faces whose letters are pixels are only set at multiples of this

Typeface typeface(const PlainFace& face, double tracking = 0)
{
    return {.family = QString::fromLatin1(face.family),
        .weight = face.weight,
        .italic = face.italic,
        .capRatio = face.capRatio,
        .tracking = tracking,
        .pixel = std::strcmp(face.family, "DotGothic16") == 0};
}

SkinStyle makeStyle(const PlainPalette& palette, const std::optional<QColor>& accent)
{
    QColor plate(palette.plate);
    plate.setAlphaF(static_cast<float>(palette.plateAlpha));
    SkinStyle style{
        .title = typeface(palette.title, palette.uppercase ? 0.9 : 0),
        .body = typeface(palette.body),
        .number = typeface(palette.number),
        .ink = palette.ink,
        .soft = palette.soft,
        .faint = palette.faint,
        .accent = accent.value_or(QColor(palette.accent)),
        .up = palette.up,
        .down = palette.down,
        .uppercase = palette.uppercase,
        .inset = palette.measures.inset,
        .corner = palette.measures.corner,
        .titleGap = palette.measures.titleGap,
        .warn = palette.warn,
        .ground = over(plate, Qt::white),
        .titleSize = palette.measures.titleSize,
        .rowSize = std::max(12.5, palette.measures.floor),
        .captionSize = std::max(10.5, palette.measures.floor),
        .floor = palette.measures.floor,
    };
    style.number.cell = palette.cell;
    style.rowPitch = style.rowSize + 6.5;
    if (style.number.family.startsWith(u"DSEG7"_s)) // has no signs
        style.unitFace = style.title;
    return style;
}

} // namespace

PlainSkin::PlainSkin(const PlainPalette& palette, std::optional<QColor> accent)
    : FaceRenderer(makeStyle(palette, accent), ambrelle::dial(palette.skin))
    , m_plate(palette.plate)
    , m_accent2(palette.accent2)
    , m_accent3(palette.accent3)
{
    m_plate.setAlphaF(static_cast<float>(palette.plateAlpha));
}

QList<QBrush> PlainSkin::partFills() const
{
    return {style().accent, m_accent2, m_accent3};
}

Box PlainSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, style().corner, Qt::black, 0.03, 6, 2);
        layer.fill(face.bounds, m_plate, style().corner);
        layer.frame(face.bounds, QPen(faded(style().ink, 0.14), 1), style().corner);
    });
    return face.bounds.inset(style().inset);
}

void PlainSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    Box line = box.cutTop(style().titleSize + 2);
    const double meridiem = canvas.text(line, reading.meridiem, style().caption().aligned(Align::right));
    line.cutRight(meridiem + Bands::gap);
    canvas.text(line, reading.dateLine(), style().header());
    canvas.text(box.cutBottom(style().captionSize + 4), reading.tag(), style().caption());
    canvas.figure(box, reading.time(), {}, style().figure(66));
}

void PlainSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.month));
    monthGrid(canvas, box, reading,
        {.weekday = style().caption(),
            .day = style().caption().coloured(style().ink),
            .todayFill = style().accent,
            .todayInk = inkOn(style().accent)});
}

void PlainSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    const Box graph =
        heroAndFooter(canvas, *this, box, QString::number(reading.percent), u"%"_s, reading.load, style().figure(40));
    const QColor colour = reading.high ? style().warn : style().accent;
    const QPainterPath line = smoothLine(samplePoints(graph, reading.history, 1));
    canvas.fill(areaUnder(line, graph.bottom()), wash(graph, colour, 0.4, 0.02));
    graphLine(canvas, line, colour, 1.8);
    if (reading.high)
        warning(canvas, Box(face.bounds.inset(style().inset)).cutTop(14).cutRight(12));
}

void PlainSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.figure(box.cutTop(38), reading.used, Wording::tr("GB"), style().figure(34));
    box.cutTop(Bands::gap);
    partsBar(canvas, box.cutTop(8), reading.parts, partFills(), style().faint, std::min(4.0, style().corner));
    box.cutTop(4);
    partsKey(canvas, *this, box, reading.parts, partFills());
    if (reading.high)
        warning(canvas, Box(face.bounds.inset(style().inset)).cutTop(14).cutRight(12));
}

void PlainSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    Box footer = box.cutBottom(style().captionSize + 3);
    if (reading.high)
        warning(canvas, footer.cutRight(14));
    canvas.text(footer, freeText(reading), style().caption());
    const StyledDial circle{
        .flavor = dial(), .value = reading.high ? style().warn : style().accent, .track = style().faint, .width = 8};
    const Box inside = circle.draw(canvas, box.inset(0, 3), reading.fraction);
    canvas.figure(inside.inset(5), QString::number(reading.percent), u"%"_s, style().figure(24).aligned(Align::centre));
}

void PlainSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    const Box middle = heroAndFooter(canvas, *this, box, QString::number(reading.percent), u"%"_s,
        reading.remaining.isEmpty() ? reading.state : reading.remaining, style().figure(36));
    const Box bar(middle.x(), middle.center().y() - 9, middle.width() - 22, 18);
    capsule(canvas, bar, reading.level, style().faint, reading.low ? style().warn : style().accent);
    if (reading.onMains)
        canvas.symbol(Box(bar.right() + 4, bar.y(), 18, 18), u"bolt.fill"_s, 16, style().ink);
    if (reading.low)
        warning(canvas, Box(face.bounds.inset(style().inset)).cutTop(14).cutRight(12));
}

void PlainSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    const Box figures = box.cutTop(32);
    const FigureStyle figure = style().figure(24);
    markedFigure(canvas, figures.column(0, 2, 12), u"arrow.down"_s, style().down, reading.down, figure);
    markedFigure(canvas, figures.column(1, 2, 12), u"arrow.up"_s, style().up, reading.up, figure);
    box.cutTop(Bands::gap);
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(style().down, 0.28));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(style().up, 0.28));
    graphLine(canvas, lines.upper, style().down, 1.6);
    graphLine(canvas, lines.lower, style().up, 1.6);
}

void PlainSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    Box rest =
        heroAndFooter(canvas, *this, box, reading.down.value, reading.down.unit, reading.hint, style().figure(30));
    markedFigure(canvas, rest.cutTop(24), u"arrow.up"_s, style().up, reading.up, style().figure(16));
    capsule(canvas, rest.centred(rest.width(), 4), reading.share, style().faint, style().accent);
}

void PlainSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face);
    rows(box, std::min<qsizetype>(reading.rows.size(), 5), std::max(20.0, style().rowPitch),
        [&](const Box& row, qsizetype index) {
            const ProcessesReading::Row& process = reading.rows[index];
            Box line = row;
            const Box track = line.cutBottom(3);
            canvas.fill(Box(track).cutLeft(track.width() * process.fraction), style().accent, 1.5);
            const double value = canvas.text(line, process.percent, style().rowValue());
            line.cutRight(value + Bands::gap);
            canvas.text(line, process.name, style().row());
        });
}

void PlainSkin::weatherDays(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    const PictogramPaint paint{
        .sun = m_accent3, .moon = style().ink, .cloud = style().soft, .water = m_accent2, .bolt = m_accent3};
    const int count = static_cast<int>(std::min<qsizetype>(reading.days.size(), 5));
    const double line = style().captionSize + 6;
    for (int index = 0; index < count; ++index) {
        const WeatherReading::Day& day = reading.days[index];
        Box column = box.column(index, 5, 2);
        const TextStyle caption = style().caption().aligned(Align::centre);
        canvas.text(column.cutTop(line), day.initial, caption);
        drawPictogram(canvas, column.cutTop(26).centred(20, 20), day.sky, paint);
        canvas.text(column.cutTop(line), day.high, caption.coloured(style().ink));
        canvas.text(column.cutTop(line), day.low, caption);
    }
}

void PlainSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(box.width() * 0.54);
    box.cutRight(12);
    const double line = style().captionSize + 5;
    canvas.text(box.cutBottom(line), reading.range(), style().caption());
    canvas.text(box.cutBottom(style().rowSize + 5), reading.description, style().row());
    canvas.figure(box, reading.temperature, u"°"_s, style().figure(46));
    weatherDays(canvas, days.inset(0, 6), reading);
}

void PlainSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.day));
    eventRows(canvas, *this, box, reading, style().rowSize + style().captionSize + 10);
}

void PlainSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    const Box cover = box.cutLeft(122).centred(122, 122);
    artwork(canvas, cover, reading.artwork, std::min(12.0, style().corner), style().faint, style().soft);
    box.cutLeft(16);
    box = box.inset(0, 8);
    const double titleSize = std::max(style().titleSize, style().floor >= pixelFont ? pixelFont : 14.0);
    trackTexts(canvas, box.cutTop(44), reading, style().header().sized(titleSize), style().caption());
    drawControls(canvas, box.cutBottom(26).centred(3 * 44, 26), 22, style().ink, reading.playing);
    Box times = box.cutBottom(style().captionSize + 6);
    canvas.text(times.column(0, 2), reading.elapsed, style().caption());
    canvas.text(times.column(1, 2), reading.total, style().caption().aligned(Align::right));
    capsule(canvas, box.cutBottom(4), reading.progress, style().faint, style().accent);
}

} // namespace ambrelle
