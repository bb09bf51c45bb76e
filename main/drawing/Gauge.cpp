// SPDX-License-Identifier: MIT

#include "drawing/Gauge.h"

#include "drawing/Arc.h"
#include "drawing/Fraction.h"

#include <cmath>

namespace ambrelle {

namespace {

constexpr double idleNeedle = 0.002; // below it the needle leans on its pin
const QPointF needleShadow(1.6, 0.6);

double turns(double degrees)
{
    return degrees / 360;
}

/// The part of the line inside the box (Liang and Barsky 1984); none where they do not meet.
std::optional<QLineF> inside(const QLineF& line, const Box& box)
{
    double from = 0;
    double to = 1;
    const auto cut = [&](double speed, double room) {
        if (speed == 0)
            return room >= 0;
        (speed < 0 ? from : to) = speed < 0 ? std::max(from, room / speed) : std::min(to, room / speed);
        return from <= to;
    };
    if (!cut(-line.dx(), line.x1() - box.left()) || !cut(line.dx(), box.right() - line.x1())
        || !cut(-line.dy(), line.y1() - box.top()) || !cut(line.dy(), box.bottom() - line.y1()))
        return {};
    return QLineF(line.pointAt(from), line.pointAt(to));
}

/// A needle in one position.
struct Pointing {
    const Needle& needle;
    QPointF centre;
    double degrees;

    std::optional<QLineF> shaft(QPointF offset = {}) const
    {
        const QPointF foot = pointOn(centre, -needle.tail, turns(degrees));
        const QLineF line(foot + offset, pointOn(centre, needle.length, turns(degrees)) + offset);
        return needle.window ? inside(line, *needle.window) : line;
    }

    void bar(Canvas& canvas, QPointF offset, const QBrush& brush) const
    {
        const std::optional<QLineF> line = shaft(offset);
        if (!line)
            return;
        if (!needle.pointed) {
            const Qt::PenCapStyle cap = needle.round ? Qt::RoundCap : Qt::FlatCap;
            canvas.line(line->p1(), line->p2(), QPen(brush, needle.width, Qt::SolidLine, cap));
            return;
        }
        const QPointF side = pointOn({}, needle.width / 2, turns(degrees + 90));
        const QPointF tip = side * 0.25;
        QPainterPath path;
        path.addPolygon(
            QPolygonF{line->p1() - side, line->p2() - tip, line->p2() + tip, line->p1() + side, line->p1() - side});
        canvas.fill(path, brush);
    }

    void draw(Canvas& canvas) const
    {
        if (needle.shadow)
            bar(canvas, needleShadow, *needle.shadow);
        bar(canvas, {}, needle.fill);
        if (needle.hub > 0)
            canvas.disc(centre, needle.hub, needle.hubFill.style() == Qt::NoBrush ? needle.fill : needle.hubFill);
    }
};

/// What a needle touches between two positions: no more than its frames have to repaint.
Box swept(const Needle& needle, QPointF centre, double low, double high)
{
    QPolygonF ends;
    for (const double degrees : {low, (low + high) / 2, high}) {
        if (const auto shaft = Pointing{needle, centre, degrees}.shaft())
            ends << shaft->p1() << shaft->p2();
    }
    const double edge = needle.width / 2 + 1;
    QRectF area = Box(ends.boundingRect()).inset(-edge);
    if (needle.shadow)
        area |= area.translated(needleShadow);
    if (needle.window)
        area &= *needle.window;
    if (needle.hub > 0)
        area |= squareAbout(centre, needle.hub + 1);
    return area;
}

} // namespace

Gauge Gauge::in(const Box& box, double start, double sweep)
{
    return {.centre = box.center(), .radius = box.square().width() / 2, .start = start, .sweep = sweep};
}

QPointF Gauge::at(double fraction, double distance) const
{
    return pointOn(centre, distance, turns(degrees(fraction)));
}

QPainterPath Gauge::arc(double from, double to, double distance) const
{
    return ambrelle::arc(squareAbout(centre, distance), turns(degrees(from)), turns(sweep * (to - from)));
}

QPainterPath Gauge::band(double from, double to, double width) const
{
    return ringPiece(squareAbout(centre, radius), width, turns(degrees(from)), turns(sweep * (to - from)));
}

void Gauge::ticks(Canvas& canvas, int steps, const std::function<Tick(int)>& tickOf) const
{
    const int last = isFull() ? steps - 1 : steps;
    for (int index = 0; index <= last; ++index) {
        const double place = static_cast<double>(index) / steps;
        if (const Tick tick = tickOf(index); tick.length > 0)
            canvas.line(at(place, radius - tick.length), at(place, radius), tick.pen);
    }
}

void Gauge::ticks(Canvas& canvas, int steps, int every, const Tick& longOne, const Tick& shortOne) const
{
    ticks(canvas, steps, [&](int index) { return index % every == 0 ? longOne : shortOne; });
}

void Gauge::numeral(Canvas& canvas, double fraction, const QString& text, double distance, const TextStyle& style) const
{
    const QPointF middle = at(fraction, distance);
    const double width = shape(style.face, style.size, text)->width + 2;
    const Box box = squareAbout(middle, 0).centred(width, style.size * style.lineHeight);
    canvas.text(box, text, style.aligned(Align::centre).asAxis());
}

void Gauge::numerals(Canvas& canvas, const QStringList& texts, double distance, const TextStyle& style) const
{
    const qsizetype spaces = isFull() ? texts.size() : texts.size() - 1;
    for (qsizetype index = 0; index < texts.size(); ++index)
        numeral(canvas, static_cast<double>(index) / static_cast<double>(std::max<qsizetype>(1, spaces)), texts[index],
            distance, style);
}

void Gauge::zone(Canvas& canvas, double from, double to, double width, const QBrush& brush) const
{
    canvas.fill(band(from, to, width), brush);
}

QPainterPath Gauge::block(int index, int count, double gap, double width, double slant) const
{
    // On a full circle there is a gap behind the last one too.
    const double step = isFull() ? sweep / count : (sweep + gap) / count;
    const double from = start + step * index + (isFull() ? gap / 2 : 0);
    return ringPiece(squareAbout(centre, radius), width, turns(from), turns(step - gap), turns(slant));
}

void Gauge::blocks(
    Canvas& canvas, int count, double gap, double width, const std::function<QBrush(int)>& brushOf, double slant) const
{
    for (int index = 0; index < count; ++index)
        canvas.fill(block(index, count, gap, width, slant), brushOf(index));
}

void Gauge::needle(Canvas& canvas, double fraction, const Needle& needle, const Tremble& tremble) const
{
    const double value = bounded(fraction);
    const double rest = degrees(value);
    if (tremble.degrees <= 0 || value < idleNeedle) {
        Pointing{needle, centre, rest}.draw(canvas);
        return;
    }
    const double most = 2 * tremble.degrees;
    canvas.moving(
        swept(needle, centre, rest - most, rest + most), Motion::steady(tremble.fps), [&](Canvas& moving, double t) {
            // Counted from its place at time 0.
            const double stray = Wave::wobble(t, tremble.seed) - Wave::wobble(0, tremble.seed);
            Pointing{needle, centre, rest + stray * tremble.degrees}.draw(moving);
        });
}

ClockHands ClockHands::plain(double radius, const QBrush& ink, const std::optional<QColor>& secondColour)
{
    ClockHands hands;
    hands.hour = {.length = radius * 0.52, .tail = radius * 0.08, .width = radius * 0.075, .fill = ink};
    hands.minute = {.length = radius * 0.8, .tail = radius * 0.08, .width = radius * 0.05, .fill = ink};
    hands.minute.hub = radius * 0.07;
    if (secondColour) {
        const double width = std::max(0.8, radius * 0.022);
        hands.second = {.length = radius * 0.86, .tail = radius * 0.2, .width = width, .fill = *secondColour};
        hands.second->hub = radius * 0.05;
    }
    return hands;
}

void ClockHands::draw(
    Canvas& canvas, QPointF centre, int hourNumber, int minuteNumber, std::optional<int> secondNumber) const
{
    const Gauge dial{.centre = centre, .start = 0, .sweep = 360};
    dial.needle(canvas, (hourNumber % 12 + minuteNumber / 60.0) / 12, hour);
    dial.needle(canvas, minuteNumber / 60.0, minute);
    if (second && secondNumber) {
        const double reach = std::max({second->length, second->tail, second->hub}) + second->width + needleShadow.x();
        canvas.ticking(
            squareAbout(centre, reach), [&](Canvas& layer) { dial.needle(layer, *secondNumber / 60.0, *second); });
    }
}

} // namespace ambrelle
