// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"

#include "drawing/Colours.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

double footerHeight(const SkinStyle& style)
{
    return std::max(Bands::footer, style.captionSize + 2);
}

double rowHeight(const SkinStyle& style)
{
    return std::max(18.0, style.rowSize + 5);
}

double twoLinePitch(const SkinStyle& style)
{
    return style.rowSize + style.captionSize + style.rowGap;
}

double upperLine(const SkinStyle& style)
{
    constexpr double wide = 8; // gap of rows that nobody takes for each other's
    constexpr double least = 1.5;
    constexpr double air = 0.4;
    const double most = style.rowSize + style.rowGap - 2;
    if (style.rowGap >= wide || style.ruling > 0 || style.body.pixel)
        return most;
    // The tails of the upper line end just above the letters of the lower one.
    const TextStyle row = style.row();
    const TextStyle caption = style.caption();
    const double tails = shape(row.face, row.size, u"gy"_s)->ink.bottom() + row.size * row.face.capRatio / 2;
    const double letters =
        shape(caption.face, caption.size, u"Yd"_s)->ink.top() + caption.size * caption.face.capRatio / 2;
    const double apart = tails - letters + air;
    return std::clamp(2 * apart - lowerLine(style), std::min(most, style.rowSize + least), most);
}

double lowerLine(const SkinStyle& style)
{
    return style.captionSize + 1;
}

void hero(Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, bool marked)
{
    hero(canvas, skin, content, value, marked, skin.style().heroCap);
}

void hero(Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, bool marked, double cap)
{
    constexpr double mark = 14;
    Box band = content.cutTop(cap + std::clamp(Bands::hero - cap, 2.0, 4.0));
    if (marked) {
        skin.warning(canvas, band.cutRight(mark));
        band.cutRight(Bands::gap);
    }
    canvas.figure(band, value.value, value.unit, skin.figure(cap));
    content.cutTop(Bands::gap);
}

void footer(Canvas& canvas, const FaceRenderer& skin, Box& content, const QString& text)
{
    const TextStyle caption = skin.style().caption().wrapped(2);
    const auto lines = static_cast<double>(wrapped(text, caption, content.width()).size());
    const Box band = content.cutBottom(std::max(1.0, lines) * footerHeight(skin.style()));
    if (lines > 1)
        canvas.paragraph(band, text, caption, Qt::AlignVCenter);
    else
        canvas.text(band, text, caption);
    content.cutBottom(Bands::gap);
}

Box heroAndFooter(Canvas& canvas, const FaceRenderer& skin, Box content, const QString& value, const QString& unit,
    const QString& footer, const FigureStyle& figure)
{
    canvas.figure(content.cutTop(figure.cap + 4), value, unit, figure);
    canvas.text(content.cutBottom(Bands::footer), footer, skin.style().caption());
    return content.inset(0, Bands::gap);
}

void named(Canvas& canvas, Box line, const QString& name, const TextStyle& nameStyle, const QString& value,
    const TextStyle& valueStyle)
{
    const double width = canvas.text(line, value, valueStyle.aligned(Align::right));
    line.cutRight(width + Bands::gap);
    canvas.text(line, name, nameStyle);
}

void rows(const Box& box, qsizetype count, double pitch, const DrawRow& draw)
{
    constexpr double rounding = 0.01;
    const auto whole = static_cast<qsizetype>((box.height() + rounding) / pitch);
    for (qsizetype index = 0; index < std::min(count, whole); ++index)
        draw({box.x(), box.y() + pitch * static_cast<double>(index), box.width(), pitch}, index);
}

void rows(const Box& box, qsizetype count, int most, double least, const DrawRow& draw)
{
    const int fitting = std::clamp(static_cast<int>(box.height() / least), 1, most);
    rows(box, std::min<qsizetype>(count, fitting), box.height() / fitting, draw);
}

namespace {

int weeksOf(const CalendarReading& reading)
{
    return (reading.firstColumn + reading.days + 6) / 7;
}

} // namespace

Box monthCell(const Box& box, const CalendarReading& reading, int day)
{
    const int place = reading.firstColumn + day - 1;
    return box.column(place % 7, 7).row(place / 7 + 1, weeksOf(reading) + 1);
}

TextStyle filledDay(Canvas& canvas, const Box& cell, const TextStyle& day, const QColor& fill, double corner)
{
    const double size = std::min({cell.width(), cell.height() + 2, 20.0});
    canvas.fill(cell.centred(size, size), fill, std::min(corner, size / 2));
    canvas.setGround(fill);
    return day.coloured(inkOn(fill));
}

void monthGrid(Canvas& canvas, const FaceRenderer& skin, const Box& box, const CalendarReading& reading,
    const TextStyle& weekday, const TextStyle& day)
{
    for (int column = 0; column < 7; ++column)
        canvas.text(box.column(column, 7).row(0, weeksOf(reading) + 1), reading.weekdays.value(column),
            weekday.aligned(Align::centre));
    for (int number = 1; number <= reading.days; ++number) {
        const Box cell = monthCell(box, reading, number);
        const QColor ground = canvas.ground();
        const TextStyle text = number == reading.today ? skin.todayMark(canvas, cell, day) : day;
        canvas.text(cell, QString::number(number), text.aligned(Align::centre));
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
    constexpr double side = 7;
    const double corner = std::min(2.0, skin.style().corner / 4);
    partsKey(canvas, skin, box, parts, side, [&](const Box& swatch, qsizetype index) {
        canvas.fill(swatch.centred(side, side), fills.value(index), corner);
    });
}

void partsKey(Canvas& canvas, const FaceRenderer& skin, const Box& box, const QList<Share>& parts, double width,
    const DrawSwatch& draw)
{
    const SkinStyle& style = skin.style();
    for (qsizetype index = 0; index < parts.size(); ++index) {
        Box line = box.row(static_cast<int>(index), static_cast<int>(parts.size()));
        draw(line.cutLeft(width), index);
        line.cutLeft(Bands::gap);
        keyLine(canvas, line, parts, index, style.caption().coloured(style.ink), style.caption());
    }
}

void keyLine(
    Canvas& canvas, Box line, const QList<Share>& parts, qsizetype index, const TextStyle& name, const TextStyle& value)
{
    constexpr double gap = 4;
    using Form = QString (*)(const QString&);
    constexpr Form forms[] = {[](const QString& text) { return text; },
        [](const QString& text) { return QString(text).remove(u' '); },
        [](const QString& text) { return text.section(u' ', 0, 0); }};
    const auto allFit = [&](Form form) {
        return std::ranges::all_of(parts, [&](const Share& part) {
            const double room = line.width() - shape(name.face, name.size, part.name)->width - gap;
            return shape(value.face, value.size, form(part.value))->width <= room;
        });
    };
    const auto fitting = std::ranges::find_if(forms, allFit);
    const Form form = fitting == std::end(forms) ? forms[2] : *fitting;
    line.cutRight(canvas.text(line, form(parts[index].value), value.aligned(Align::right)) + gap);
    canvas.text(line, parts[index].name, name);
}

std::optional<qsizetype> partAt(const QList<Share>& parts, double place)
{
    for (qsizetype index = 0; index < parts.size(); ++index) {
        place -= parts[index].fraction;
        if (place < 0)
            return index;
    }
    return std::nullopt;
}

void secondFigure(
    Canvas& canvas, const Box& box, const ClockReading& reading, const QString& unit, const FigureStyle& figure)
{
    canvas.ticking(
        box.inset(-figure.cap / 4), [&](Canvas& layer) { layer.figure(box, reading.secondText(), unit, figure); });
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

void rates(Canvas& canvas, const FaceRenderer& skin, const Box& box, const NetworkReading& reading)
{
    constexpr double gap = 12;
    const double cap = skin.style().rateCap;
    skin.rate(canvas, box.column(0, 2, gap), false, reading.down, cap);
    skin.rate(canvas, box.column(1, 2, gap), true, reading.up, cap);
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

} // namespace ambrelle
