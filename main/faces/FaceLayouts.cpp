// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"

#include "drawing/Fraction.h"
#include "drawing/PixelPaint.h"
#include "drawing/Symbols.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

void eventRows(Canvas& canvas, const FaceRenderer& skin, const Box& box, const EventsReading& reading, double pitch)
{
    const SkinStyle& style = skin.style();
    rows(box, reading.rows.size(), pitch, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        Box line = row;
        skin.eventMark(canvas, line, event.colour);
        line = line.centred(line.width(), upperLine(style) + lowerLine(style));
        canvas.text(line.cutTop(upperLine(style)), event.title, style.row());
        canvas.text(line, style.words(event.time), style.caption());
        skin.separator(canvas, row);
    });
}

void processRows(Canvas& canvas, const FaceRenderer& skin, const Box& box, const ProcessesReading& reading, int most)
{
    constexpr double air = 3;
    const SkinStyle& style = skin.style();
    rows(box, reading.rows.size(), most, style.rowSize + air, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        skin.separator(canvas, row);
        skin.rowLevel(canvas, line, process.fraction, index);
        skin.rowMark(canvas, line, index);
        named(canvas, line, process.name, style.row(), process.percent, style.rowValue());
    });
}

void weatherNow(Canvas& canvas, const FaceRenderer& skin, Box box, const WeatherReading& reading, double picture)
{
    constexpr double gap = 8;
    const SkinStyle& style = skin.style();
    canvas.text(box.cutBottom(footerHeight(style)), reading.range(), style.caption());
    canvas.text(box.cutBottom(rowHeight(style)), reading.description, style.row());
    skin.pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(gap);
    const FigureStyle figure = skin.figure(style.temperatureCap);
    if (figure.face.italic)
        box.cutRight(figure.cap * 0.12); // over which the sign leans
    canvas.figure(box, reading.temperature, u"°"_s, figure);
}

QString temperatureIn(const QString& value, const TextStyle& text, double width)
{
    return elided(value, text, width) == value ? value : value.chopped(1);
}

void dayColumns(const Box& box, const WeatherReading& reading, int most, double gap, const DrawDay& draw)
{
    for (int index = 0; index < std::min<qsizetype>(reading.days.size(), most); ++index)
        draw(box.column(index, most, gap), reading.days[index], index);
}

void dayColumn(Canvas& canvas, const FaceRenderer& skin, Box column, const WeatherReading::Day& day)
{
    constexpr double largest = 26;
    const SkinStyle& style = skin.style();
    const double line = style.captionSize + 6;
    const TextStyle caption = style.caption().aligned(Align::centre);
    canvas.text(column.cutTop(line), day.initial, caption);
    canvas.text(column.cutBottom(line), temperatureIn(day.low, caption, column.width()), caption);
    canvas.text(column.cutBottom(line), temperatureIn(day.high, caption, column.width()), caption.coloured(style.ink));
    const double size = std::min({largest, column.width(), column.height()});
    skin.pictogram(canvas, column.centred(size, size), day.sky);
}

void dayRows(const Box& box, const WeatherReading& reading, int most, const DrawDay& draw)
{
    rows(box, std::min<qsizetype>(reading.days.size(), most), box.height() / most,
        [&](const Box& row, qsizetype index) { draw(row, reading.days[index], index); });
}

Box dayRow(Canvas& canvas, const FaceRenderer& skin, Box row, const WeatherReading::Day& day, double name)
{
    const SkinStyle& style = skin.style();
    const double picture = std::min(18.0, row.height());
    const double temperature = style.captionSize * 3.2;
    const TextStyle caption = style.caption();
    canvas.text(row.cutLeft(name), day.name, caption.coloured(style.ink));
    skin.pictogram(canvas, row.cutLeft(picture + 2).centred(picture, picture), day.sky);
    canvas.text(row.cutRight(temperature), day.high, caption.coloured(style.ink).aligned(Align::right));
    canvas.text(row.cutRight(temperature), day.low, caption.aligned(Align::right));
    return row.inset(Bands::gap, 0);
}

Box span(const Box& track, double low, double high)
{
    const double from = bounded(std::min(low, high));
    const double to = bounded(std::max(low, high));
    if (track.width() >= track.height()) {
        const double length = std::max(track.height(), track.width() * (to - from));
        return {
            std::min(track.left() + track.width() * from, track.right() - length), track.top(), length, track.height()};
    }
    const double length = std::max(track.width(), track.height() * (to - from));
    return {
        track.left(), std::max(track.bottom() - track.height() * from - length, track.top()), track.width(), length};
}

PlayerPlaces playerPlaces(Box content, double controlsHeight)
{
    PlayerPlaces places;
    places.cover = content.cutLeft(content.height());
    content.cutLeft(16);
    content.cutTop(2);
    places.texts = content.cutTop(44);
    places.controls = content.cutBottom(controlsHeight);
    content.cutBottom(Bands::gap);
    places.times = content.cutBottom(Bands::footer);
    places.progress = content.cutBottom(9);
    return places;
}

void trackLines(Canvas& canvas, const FaceRenderer& skin, const PlayerPlaces& places, const NowPlayingReading& reading,
    const TextStyle& title)
{
    const SkinStyle& style = skin.style();
    trackTexts(canvas, places.texts, reading, title, style.caption().sized(std::max(12.0, style.captionSize)));
    skin.level(canvas, places.progress, reading.progress, style.accent);
    trackTimes(canvas, places.times, reading, style.caption());
}

void trackTimes(Canvas& canvas, const Box& box, const NowPlayingReading& reading, const TextStyle& style)
{
    canvas.text(box.column(0, 2), reading.elapsed, style);
    canvas.text(box.column(1, 2), reading.total, style.aligned(Align::right));
}

void controls(Canvas& canvas, const Box& box, bool playing, const DrawKey& draw, bool active)
{
    struct Control {
        QString symbol;
        FaceAction::Verb verb;
    };
    const std::array keys{
        Control{u"backward.fill"_s, FaceAction::Verb::previousTrack},
        Control{playing ? u"pause.fill"_s : u"play.fill"_s, FaceAction::Verb::playPause},
        Control{u"forward.fill"_s, FaceAction::Verb::nextTrack},
    };
    for (int index = 0; index < 3; ++index) {
        const Control& key = keys[static_cast<std::size_t>(index)];
        const Box place = box.column(index, 3);
        draw(place, key.symbol, index == 1);
        if (active)
            canvas.hit(place, {key.verb});
    }
}

void controls(Canvas& canvas, const FaceRenderer& skin, const Box& box, bool playing)
{
    controls(canvas, box, playing,
        [&](const Box& place, const QString& symbol, bool middle) { skin.key(canvas, place, symbol, middle); });
}

void trackTexts(
    Canvas& canvas, const Box& box, const NowPlayingReading& reading, const TextStyle& title, const TextStyle& artist)
{
    const double pitch = std::max(title.size, artist.size) * 1.35;
    Box block = box.centred(box.width(), pitch * 2);
    canvas.text(block.cutTop(pitch), reading.title, title);
    canvas.text(block, reading.artist, artist);
}

void picture(Canvas& canvas, const Box& box, const QImage& image, double radius, bool fills)
{
    const QSizeF room = box.size();
    const QSizeF size = QSizeF(image.size()).scaled(room, fills ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
    const QRectF shown = fills ? QRectF(box) : QRectF(box.centred(size.width(), size.height()));
    if (canvas.finish() != Finish::smooth) {
        const double grow = size.width() / image.width();
        const Box source = Box(image.rect()).centred(shown.width() / grow, shown.height() / grow);
        canvas.paint([&](QPainter& painter) { PixelPaint(painter, canvas.finish()).picture(shown, image, source); });
        return;
    }
    canvas.paint([&](QPainter& painter) {
        QPainterPath outline;
        outline.addRoundedRect(shown, radius, radius);
        // A texture brush, not a clip: clips are not antialiased.
        QBrush texture(image);
        const Box whole = box.centred(size.width(), size.height());
        QTransform place = QTransform::fromTranslate(whole.x(), whole.y());
        place.scale(whole.width() / image.width(), whole.height() / image.height());
        texture.setTransform(place);
        painter.fillPath(outline, texture);
    });
}

void artwork(
    Canvas& canvas, const Box& box, const Picture& cover, double radius, const QBrush& ground, const QColor& ink)
{
    if (cover) {
        picture(canvas, box, cover.image, radius, true);
        return;
    }
    canvas.fill(box, ground, radius);
    canvas.symbol(box, u"music.note"_s, box.height() * 0.4, ink);
}

QPainterPath symbolIn(const Box& box, const QString& name, double size)
{
    const Box square = box.centred(size, size);
    QTransform place = QTransform::fromTranslate(square.x(), square.y());
    place.scale(size, size);
    return place.map(symbolPath(name));
}

} // namespace ambrelle
