// SPDX-License-Identifier: MIT

#include "faces/SharedFaces.h"

#include "drawing/Colours.h"
#include "faces/FaceKit.h"
#include "faces/MoonDisc.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// A row of two lines, as tall as the skin's texts need.
double twoLinePitch(const SkinStyle& style)
{
    return style.rowSize + style.captionSize + style.rowGap;
}

/// The line at the lower edge; deeper where the texts are large.
double footerHeight(const SkinStyle& style)
{
    return std::max(Bands::footer, style.captionSize + 2);
}

/// The moon's lit part is the lighter one, whatever the plate.
MoonDisc moonOf(const SkinStyle& style)
{
    const QPen edge(style.soft, 0.8);
    if (inkOn(style.ground) == QColor(Qt::black))
        return {.lit = style.ground, .dark = blended(style.ink, style.ground, 0.35), .edge = edge};
    return {.lit = blended(style.ink, style.accent, 0.12), .dark = style.faint, .edge = edge};
}

/// The parts of a device without the dots between them where these take the room of the last part.
QString fitted(const QString& detail, const TextStyle& text, double width)
{
    return elided(detail, text, width) == detail ? detail : QString(detail).replace(u" · "_s, u" "_s);
}

void sessionDots(Canvas& canvas, const SkinStyle& style, const Box& box, int lit)
{
    constexpr int count = 4;
    constexpr double pitch = 14;
    const Box line = box.centred(pitch * count, box.height());
    for (int index = 0; index < count; ++index) {
        const QPointF centre = line.column(index, count).center();
        if (index < lit) {
            canvas.disc(centre, 3.5, style.accent);
        } else {
            QPainterPath ring;
            ring.addEllipse(centre, 3, 3);
            canvas.stroke(ring, QPen(style.soft, 1));
        }
    }
}

} // namespace

void drawShared(Canvas& canvas, const FaceRenderer& skin, const FocusReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face, style.caps(reading.phase));
    sessionDots(canvas, style, box.cutBottom(10), reading.sessions);
    const Box inside = skin.progressDial(canvas, box.inset(0, 4), reading.progress);
    FigureStyle figure = style.figure(style.dialCap).aligned(Align::centre);
    if (!reading.running)
        figure.fill = style.soft;
    canvas.figure(inside.inset(inside.width() * 0.04, 0), reading.remaining, {}, figure);
    canvas.hit(face.bounds, {FaceAction::Verb::toggleFocus});
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const RemindersReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    const Box box = skin.framed(canvas, face);
    rows(box, reading.rows.size(), twoLinePitch(style), [&](const Box& row, qsizetype index) {
        const RemindersReading::Row& reminder = reading.rows[index];
        Box line = row;
        const Box mark = line.cutLeft(20);
        canvas.symbol(mark, reminder.done ? u"checkmark.circle.fill"_s : u"circle"_s, 16,
            reminder.done ? style.accentText() : style.soft);
        canvas.hit(row, {FaceAction::Verb::completeReminder, reminder.id});
        line.cutLeft(2);
        const TextStyle text = reminder.done ? style.row().coloured(style.soft) : style.row();
        if (reminder.due.isEmpty()) {
            canvas.text(line, reminder.title, text);
            return;
        }
        const QColor due = reminder.overdue ? legible(style.warn, style.ink, style.ground) : style.soft;
        canvas.text(line.cutTop(style.rowSize + style.rowGap - 2), reminder.title, text);
        canvas.text(line.cutTop(style.captionSize + 1), reminder.due, style.caption().coloured(due));
    });
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const CountdownReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    canvas.figure(box.cutTop(Bands::hero), reading.days, {}, style.figure(38));
    canvas.text(box.cutTop(style.captionSize + 5), reading.unit, style.caption());
    canvas.text(box.cutBottom(footerHeight(style)), reading.date, style.caption());
    box.cutBottom(2);
    skin.level(canvas, box.cutBottom(4), reading.progress, style.accent);
    box.cutBottom(2);
    canvas.text(box, reading.title, style.row());
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const SkyReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    Box upper = box.cutTop(64);
    moonOf(style).draw(canvas, upper.cutLeft(64), reading.fraction);
    upper.cutLeft(10);
    const double name =
        canvas.paragraph(upper.inset(0, 4), reading.phase, style.caption().coloured(style.ink).wrapped(2));
    upper.cutTop(name + 6);
    canvas.paragraph(upper, reading.illumination, style.caption().wrapped(2));
    const TextStyle caption = style.caption();
    Box line = box.cutBottom(style.captionSize + 2);
    if (reading.sunrise.isEmpty() && reading.sunset.isEmpty()) {
        canvas.paragraph(box.united(line), reading.next, caption.wrapped(2), Qt::AlignVCenter);
        return;
    }
    canvas.text(line, reading.sunrise, caption);
    canvas.text(line, reading.sunset, caption.aligned(Align::right));
    box.cutTop(8);
    box.cutBottom(4);
    const SunArc arc{.arc = QPen(style.soft, 1.2, Qt::DotLine), .horizon = QPen(style.faint, 1), .sun = style.accent};
    arc.draw(canvas, box, reading.sun);
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const ActivityReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    canvas.text(box.cutTop(26), reading.active, style.header().sized(std::max(style.titleSize, 18.0)));
    if (!reading.hint.isEmpty())
        canvas.text(box.cutBottom(style.captionSize + 4), reading.hint, style.caption());
    else if (!reading.metres.isEmpty() || !reading.clicks.isEmpty()) {
        Box footer = box.cutBottom(style.captionSize + 4);
        const double metres = canvas.text(footer, reading.metres, style.caption());
        footer.cutLeft(metres + 6);
        canvas.text(footer, reading.clicks, style.caption().aligned(Align::right));
    }
    const TextStyle hours = style.caption().sized(std::max(9.0, style.floor - 1)).asAxis();
    Box axis = box.cutBottom(std::max(12.0, hours.size + 1));
    for (int mark = 0; mark < 4; ++mark)
        canvas.text(axis.column(mark, 4), QString::number(mark * 6), hours);
    box.cutTop(4);
    canvas.rule(Box(box.x(), box.bottom() - 1, box.width(), 1), style.faint, 1);
    for (int hour = 0; hour < 24; ++hour) {
        Box column = box.column(hour, 24, 1.5);
        const double height = std::max(1.0, column.height() * std::clamp(reading.hours.value(hour), 0.0, 1.0));
        canvas.fill(column.cutBottom(height), hour == reading.hour ? style.accent : faded(style.accent, 0.55), 1);
    }
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const QuoteReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    if (reading.word) {
        canvas.text(box.cutTop(30), reading.source, style.header().sized(std::max(style.titleSize, 24.0)));
        canvas.text(box.cutTop(style.captionSize + 6), reading.note, style.caption());
        box.cutTop(4);
    } else {
        canvas.text(box.cutBottom(footerHeight(style)), u"— "_s + reading.source, style.caption());
        box.cutBottom(4);
    }
    // The largest step at which the text is whole.
    TextStyle text = style.row().wrapped(5);
    for (const double size : {17.0, 15.0, 13.5, std::max(12.0, style.floor)}) {
        text = text.sized(std::max(size, style.floor));
        text.lines = std::clamp(static_cast<int>(box.height() / (text.size * text.lineHeight)), 1, 5);
        const QStringList lines = wrapped(reading.text, text, box.width());
        if (lines.isEmpty() || !lines.last().endsWith(u'…'))
            break;
    }
    canvas.paragraph(box, reading.text, text, reading.word ? Qt::AlignTop : Qt::AlignVCenter);
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const DevicesReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    const Box box = skin.framed(canvas, face);
    constexpr double low = 0.2;
    rows(box, reading.rows.size(), twoLinePitch(style), [&](const Box& row, qsizetype index) {
        const DevicesReading::Row& device = reading.rows[index];
        Box line = row;
        canvas.symbol(line.cutLeft(18), device.symbol, 16, style.ink);
        line.cutLeft(6);
        Box upper = line.cutTop(style.rowSize + style.rowGap - 2);
        if (device.charging) {
            const double bolt = std::max(11.0, style.captionSize);
            canvas.symbol(upper.cutRight(bolt + 1), u"bolt.fill"_s, bolt, style.accentText());
        }
        const double percent = canvas.text(upper, device.percent, style.caption().aligned(Align::right));
        upper.cutRight(percent + 6);
        canvas.text(upper, device.name, style.row().elided(Qt::ElideMiddle));
        const Box below = line.cutTop(style.captionSize + 1);
        if (!device.detail.isEmpty())
            canvas.text(below, fitted(device.detail, style.caption(), below.width()), style.caption());
        else if (device.level)
            skin.level(canvas, below.centred(below.width(), 4), *device.level,
                *device.level <= low ? style.warn : style.accent);
    });
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const PhotoReading& reading, const FaceContext& face)
{
    picture(canvas, skin.photoPlate(canvas, face), reading.picture.image, skin.photoCorner(), reading.fills);
}

} // namespace ambrelle
