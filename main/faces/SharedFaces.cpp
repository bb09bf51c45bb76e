// SPDX-License-Identifier: MIT

#include "faces/SharedFaces.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "faces/FaceKit.h"
#include "faces/MoonDisc.h"
#include "faces/TiltedFace.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double markRoom = 24; // of the symbol that begins a row
constexpr double markSize = 12; // of a warning beside a caption
constexpr double markGap = 3;
constexpr double leastArc = 8; // height of the way of the sun
constexpr double leastAir = 1.5; // between rows of two lines, which belong together
constexpr double leastDeviceAir = 1;

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

void sessionDots(Canvas& canvas, const FaceRenderer& skin, const Box& box, int lit)
{
    constexpr int count = 4;
    constexpr double pitch = 14;
    const Box line = box.centred(pitch * count, box.height());
    for (int index = 0; index < count; ++index)
        skin.sessionDot(canvas, line.column(index, count), index < lit);
}

/// Two captions at the ends of a line, or one under the other where it is too short for both; cuts them off.
void twoCaptions(Canvas& canvas, const SkinStyle& style, Box& content, const QString& left, const QString& right)
{
    const TextStyle text = style.caption();
    const double height = style.captionSize + 4;
    const double needed = shape(text.face, text.size, left)->width + shape(text.face, text.size, right)->width;
    const Box line = content.cutBottom(height);
    if (needed + Bands::gap <= content.width()) {
        named(canvas, line, left, text, right, text);
        return;
    }
    canvas.text(line, right, text);
    canvas.text(content.cutBottom(height), left, text);
}

/// A row of one line, or of a row's text over a caption; on ruled paper it goes from rule to rule.
double heightOf(const SkinStyle& style, bool twoLines)
{
    if (style.ruling > 0)
        return twoLines ? twoLinePitch(style) : style.ruling;
    return twoLines ? upperLine(style) + lowerLine(style) : rowHeight(style);
}

/// As many rows of those heights as fit whole with `least` between them, and as much air as is left; none on ruled
/// paper.
void airyRows(Canvas& canvas, const FaceRenderer& skin, const Box& box, const QList<double>& heights, double least,
    const DrawRow& draw)
{
    constexpr double most = 8;
    const bool ruled = skin.style().ruling > 0;
    double used = 0;
    qsizetype count = 0;
    const auto airs = [&] { return ruled ? 0 : least * static_cast<double>(count); };
    while (count < heights.size() && used + airs() + heights[count] <= box.height())
        used += heights[count++];
    const double left = (box.height() - used) / static_cast<double>(std::max<qsizetype>(1, count));
    const double air = ruled ? 0 : std::clamp(left, least, most);
    double y = box.y();
    for (qsizetype index = 0; index < count; ++index) {
        const Box row(box.x(), y, box.width(), heights[index]);
        skin.separator(canvas, row.adjusted(0, 0, 0, air / 2));
        draw(row, index);
        y += heights[index] + air;
    }
}

/// The heights of the rows; levels, which their figures tell as well, go where there is no room for all of them.
QList<double> deviceHeights(const SkinStyle& style, const DevicesReading& reading, double room)
{
    const auto with = [&](bool levels) {
        QList<double> heights;
        for (const DevicesReading::Row& device : reading.rows)
            heights.append(heightOf(style, !device.detail.isEmpty() || (levels && device.level)));
        return heights;
    };
    const QList<double> all = with(true);
    const double airs = style.ruling > 0 ? 0 : leastDeviceAir * static_cast<double>(all.size() - 1);
    return std::accumulate(all.begin(), all.end(), airs) <= room ? all : with(false);
}

} // namespace

void drawShared(Canvas& canvas, const FaceRenderer& skin, const FocusReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face, style.caps(reading.phase));
    sessionDots(canvas, skin, box.cutBottom(10), reading.sessions);
    const Box inside = skin.progressDial(canvas, box.inset(0, 4), reading.progress, style.accent);
    FigureStyle figure = skin.figure(style.dialCap).aligned(Align::centre);
    if (!reading.running)
        figure.fill = style.soft;
    canvas.figure(inside.inset(inside.width() * 0.04, 0), reading.remaining, {}, figure);
    canvas.hit(face.bounds, {FaceAction::Verb::toggleFocus});
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const RemindersReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    const Box box = skin.framed(canvas, face);
    QList<double> heights;
    for (const RemindersReading::Row& reminder : reading.rows)
        heights.append(heightOf(style, !reminder.due.isEmpty()));
    airyRows(canvas, skin, box, heights, leastAir, [&](const Box& row, qsizetype index) {
        const RemindersReading::Row& reminder = reading.rows[index];
        Box line = row;
        skin.checkMark(canvas, line.cutLeft(20), reminder.done);
        canvas.hit(row, {FaceAction::Verb::completeReminder, reminder.id});
        line.cutLeft(2);
        const TextStyle text = reminder.done ? skin.doneRow() : style.row();
        if (reminder.due.isEmpty()) {
            canvas.text(line, reminder.title, text);
            return;
        }
        const QColor due = reminder.overdue ? legible(style.warn, style.ink, style.ground) : style.soft;
        Box upper = line.cutTop(upperLine(style));
        if (reminder.overdue) {
            skin.warning(canvas, upper.cutRight(markSize));
            upper.cutRight(markGap);
        }
        canvas.text(upper, reminder.title, text);
        const TextStyle caption = style.caption().coloured(due);
        const QString time = style.words(reminder.due);
        const bool whole = elided(time, caption, line.width()) == time;
        canvas.text(line.cutTop(lowerLine(style)), whole ? time : style.words(reminder.dueDay), caption);
    });
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const CountdownReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    canvas.figure(box.cutTop(Bands::hero), reading.days, {}, skin.figure(38));
    canvas.text(box.cutTop(style.captionSize + 5), style.words(reading.unit), style.caption());
    canvas.text(box.cutBottom(footerHeight(style)), style.words(reading.date), style.caption());
    box.cutBottom(2);
    skin.level(canvas, box.cutBottom(4), reading.progress, style.accent);
    box.cutBottom(2);
    canvas.text(box, reading.title, style.row());
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const SkyReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    const bool sunKnown = !reading.sunrise.isEmpty() || !reading.sunset.isEmpty();
    const double moon = sunKnown ? 58 : 64;
    Box upper = box.cutTop(moon);
    moonOf(style).draw(canvas, upper.cutLeft(moon), reading.fraction);
    upper.cutLeft(10);
    const double name =
        canvas.paragraph(upper.inset(0, 4), style.words(reading.phase), style.caption().coloured(style.ink).wrapped(2));
    upper.cutTop(name + 6);
    canvas.paragraph(upper, style.words(reading.illumination), style.caption().wrapped(2));
    const TextStyle caption = style.caption();
    if (!sunKnown) {
        canvas.paragraph(box, style.words(reading.next), caption.wrapped(2), Qt::AlignVCenter);
        return;
    }
    box.cutTop(2);
    named(canvas, box.cutBottom(style.captionSize + 2), reading.sunrise, caption, reading.sunset, caption);
    box.cutTop(canvas.paragraph(box, style.words(reading.next), caption.wrapped(2)) + 5);
    box.cutBottom(3);
    if (box.height() < leastArc)
        return;
    const SunArc arc{.arc = QPen(style.soft, 1.2, Qt::DotLine), .horizon = QPen(style.faint, 1), .sun = style.accent};
    arc.draw(canvas, box, reading.sun);
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const ActivityReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    Box box = skin.framed(canvas, face);
    canvas.text(box.cutTop(26), style.words(reading.active), style.header().sized(std::max(style.titleSize, 18.0)));
    if (!reading.hint.isEmpty())
        canvas.text(box.cutBottom(style.captionSize + 4), style.words(reading.hint), style.caption());
    else if (!reading.metres.isEmpty() || !reading.clicks.isEmpty())
        twoCaptions(canvas, style, box, reading.metres, style.words(reading.clicks));
    const TextStyle hours = style.caption().sized(std::max(9.0, style.floor - 1)).asAxis();
    Box axis = box.cutBottom(std::max(12.0, hours.size + 2));
    for (int mark = 0; mark < 4; ++mark)
        canvas.text(axis.column(mark, 4), QString::number(mark * 6), hours);
    box.cutTop(4);
    canvas.rule(Box(box.x(), box.bottom() - 1, box.width(), 1), style.faint, 1);
    for (int hour = 0; hour < 24; ++hour)
        skin.hourBar(canvas, box.column(hour, 24, 1.5), bounded(reading.hours.value(hour)), hour == reading.hour);
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const QuoteReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    const bool ruled = style.ruling > 0;
    const double floor = textFloor(skin, face);
    Box box = skin.framed(canvas, face);
    if (reading.word) {
        if (ruled)
            box.cutTop(style.ruling); // over the word, which is taller than a line
        canvas.text(box.cutTop(ruled ? style.ruling : 30), reading.source,
            style.header().sized(std::max(style.titleSize, ruled ? 20.0 : 24.0)));
        canvas.text(box.cutTop(ruled ? style.ruling : style.captionSize + 6), reading.note, style.caption());
        box.cutTop(ruled ? 0 : 4);
    } else {
        canvas.text(box.cutBottom(ruled ? style.ruling : footerHeight(style)), reading.credit(), style.caption());
        box.cutBottom(ruled ? 0 : 4);
    }
    // The largest step at which the text is whole.
    TextStyle text = style.row().wrapped(5);
    qsizetype lines = 0;
    for (const double size : {17.0, 15.0, 13.5, std::max(12.0, floor)}) {
        text = text.sized(std::max(size, floor));
        if (ruled)
            text.lineHeight = style.ruling / text.size;
        text.lines = std::clamp(static_cast<int>(box.height() / (text.size * text.lineHeight) + 1e-6), 1, 5);
        const QStringList shown = wrapped(reading.text, text, box.width());
        lines = shown.size();
        if (shown.isEmpty() || !shown.last().endsWith(u'…'))
            break;
    }
    if (ruled && !reading.word) // whole lines above
        box.cutTop(style.ruling * std::ceil((box.height() / style.ruling - static_cast<double>(lines)) / 2 - 0.1));
    canvas.paragraph(box, reading.text, text, reading.word || ruled ? Qt::AlignTop : Qt::AlignVCenter);
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const DevicesReading& reading, const FaceContext& face)
{
    const SkinStyle& style = skin.style();
    const Box box = skin.framed(canvas, face);
    constexpr double low = 0.2;
    const QList<double> heights = deviceHeights(style, reading, box.height());
    airyRows(canvas, skin, box, heights, leastDeviceAir, [&](const Box& row, qsizetype index) {
        const DevicesReading::Row& device = reading.rows[index];
        Box line = row;
        const bool twoLines = row.height() > heightOf(style, false);
        const QString detail = fitted(device.detail, style.caption(), line.width() - markRoom);
        // A detail too long for its place goes on under the symbol.
        const bool wide = elided(detail, style.caption(), line.width() - markRoom) != detail;
        Box upper = wide ? line.cutTop(upperLine(style)) : line;
        canvas.symbol(upper.cutLeft(18), device.symbol, 16, style.ink);
        upper.cutLeft(markRoom - 18);
        if (!wide && twoLines) {
            line = upper;
            upper = line.cutTop(upperLine(style));
        }
        if (device.charging) {
            const double bolt = std::max(11.0, style.captionSize);
            canvas.symbol(upper.cutRight(bolt + 1), u"bolt.fill"_s, bolt, style.accentText());
        }
        const double percent = canvas.text(upper, device.percent, style.caption().aligned(Align::right));
        upper.cutRight(percent + 6);
        if (device.level && *device.level <= low && !device.charging)
            skin.warning(canvas, upper.cutRight(markSize));
        canvas.text(upper, device.name, style.row().elided(Qt::ElideMiddle));
        const Box below = line.cutTop(lowerLine(style));
        if (!device.detail.isEmpty())
            canvas.text(below, detail, style.caption());
        else if (device.level && twoLines)
            skin.level(canvas, below.centred(below.width(), 4), *device.level, skin.valueColour(*device.level <= low));
    });
}

void drawShared(Canvas& canvas, const FaceRenderer& skin, const PhotoReading& reading, const FaceContext& face)
{
    picture(canvas, skin.photoPlate(canvas, face), reading.picture.image, skin.photoCorner(), reading.fills);
    skin.overPhoto(canvas, face);
}

} // namespace ambrelle
