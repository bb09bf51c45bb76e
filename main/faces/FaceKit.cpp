// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"

#include "drawing/PixelPaint.h"
#include "foundation/Wording.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

Box heroAndFooter(Canvas& canvas, const FaceRenderer& skin, Box content, const QString& value, const QString& unit,
    const QString& footer, const FigureStyle& figure)
{
    canvas.figure(content.cutTop(figure.cap + 4), value, unit, figure);
    canvas.text(content.cutBottom(Bands::footer), footer, skin.style().caption());
    return content.inset(0, Bands::gap);
}

void rows(const Box& box, qsizetype count, double pitch, const std::function<void(const Box&, qsizetype)>& draw)
{
    constexpr double rounding = 0.01;
    const auto whole = static_cast<qsizetype>((box.height() + rounding) / pitch);
    for (qsizetype index = 0; index < std::min(count, whole); ++index)
        draw({box.x(), box.y() + pitch * static_cast<double>(index), box.width(), pitch}, index);
}

void monthGrid(Canvas& canvas, const Box& box, const CalendarReading& reading, const MonthGridStyle& style)
{
    const int weeks = (reading.firstColumn + reading.days + 6) / 7;
    const int lines = weeks + 1;
    for (int column = 0; column < 7; ++column)
        canvas.text(
            box.column(column, 7).row(0, lines), reading.weekdays.value(column), style.weekday.aligned(Align::centre));
    for (int day = 1; day <= reading.days; ++day) {
        const int place = reading.firstColumn + day - 1;
        const Box cell = box.column(place % 7, 7).row(place / 7 + 1, lines);
        TextStyle text = style.day.aligned(Align::centre);
        const QColor ground = canvas.ground();
        if (day == reading.today) {
            const double size = std::min({cell.width(), cell.height() + 2, 20.0});
            canvas.fill(cell.centred(size, size), style.todayFill, std::min(style.todayCorner, size / 2));
            canvas.setGround(style.todayFill.color());
            text.colour = style.todayInk;
        }
        canvas.text(cell, QString::number(day), text);
        canvas.setGround(ground);
    }
}

void partsBar(Canvas& canvas, const Box& box, const QList<Share>& parts, const QList<QBrush>& fills, const QBrush& rest,
    double radius)
{
    canvas.fill(box, rest, radius);
    QPainterPath outline;
    outline.addRoundedRect(box, radius, radius);
    double x = box.left();
    for (qsizetype index = 0; index < std::min(parts.size(), fills.size()); ++index) {
        const double width = std::min(box.width() * parts[index].fraction, box.right() - x);
        QPainterPath piece;
        piece.addRect(QRectF(x, box.top(), width, box.height()));
        canvas.fill(radius > 0 ? piece.intersected(outline) : piece, fills[index]);
        x += width;
    }
}

void partsKey(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const QList<Share>& parts, const QList<QBrush>& fills)
{
    constexpr double swatch = 7;
    const SkinStyle& style = skin.style();
    for (qsizetype index = 0; index < parts.size(); ++index) {
        Box line = box.row(static_cast<int>(index), static_cast<int>(parts.size()));
        canvas.fill(line.cutLeft(swatch).centred(swatch, swatch), fills.value(index), std::min(2.0, style.corner / 4));
        line.cutLeft(Bands::gap);
        const double value = canvas.text(line, parts[index].value, style.caption().aligned(Align::right));
        line.cutRight(value + 4);
        canvas.text(line, parts[index].name, style.caption().coloured(style.ink));
    }
}

QString freeText(const DiskReading& reading)
{
    return Wording::tr("%1 %2 free").arg(reading.free, reading.unit);
}

void markedFigure(Canvas& canvas, const Box& box, const QString& symbol, const QColor& mark, const Units::Pair& pair,
    const FigureStyle& figure)
{
    Box room = box;
    const double size = std::max(12.0, figure.cap * 0.62);
    canvas.symbol(room.cutLeft(size), symbol, size, mark);
    room.cutLeft(4);
    canvas.figure(room, pair.value, pair.unit, figure);
}

MirroredLines mirrored(const Box& box, const History& upper, const History& lower, double peak)
{
    // One scale for both, and as much room for each as it needs.
    const auto highest = [](const History& history) {
        return history.isEmpty() ? 0 : *std::ranges::max_element(history);
    };
    const double up = std::max(highest(upper), peak * 0.01);
    const double down = std::max(highest(lower), peak * 0.01);
    const double share = std::clamp(up / (up + down), 0.25, 0.75);
    const double top =
        std::max({peak / std::max(share, 1 - share) * 0.5, up / share * 0.5, down / (1 - share) * 0.5}) * 2;
    Box half = box;
    const Box above = half.cutTop(box.height() * share);
    QPolygonF below = samplePoints(half, lower, top * (1 - share));
    for (QPointF& point : below)
        point.setY(half.top() + half.bottom() - point.y());
    return {smoothLine(samplePoints(above, upper, top * share)), smoothLine(below), half.top()};
}

void eventRows(Canvas& canvas, const FaceRenderer& skin, const Box& box, const EventsReading& reading, double pitch)
{
    const SkinStyle& style = skin.style();
    rows(box, reading.rows.size(), pitch, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        Box line = row;
        canvas.fill(line.cutLeft(3).inset(0, 2), event.colour, 1.5);
        line.cutLeft(8);
        const Box upper = line.cutTop(line.height() / 2 + 1);
        canvas.text(upper, event.title, style.row());
        canvas.text(line, event.time, style.caption());
    });
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

} // namespace ambrelle
