// SPDX-License-Identifier: MIT

#include "skins/bauhaus/BauhausSkin.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "drawing/PictureTreatment.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/bauhaus/BauhausPieces.h"
#include "skins/bauhaus/BauhausStyle.h"
#include "skins/Skins.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace bauhaus;

namespace {

constexpr double gutter = 14; // between the bar and the content
constexpr double wideLift = 5; // by which a last line that reaches the right edge stands higher

/// Smaller below a chart, which takes the whole width.
double cornerOf(const FaceContext& face)
{
    return face.medium() && face.kind != WidgetKind::network ? cornerMedium : cornerSmall;
}

/// Kinds whose last line is short and starts at the left, so that it may stand beside the quarter circle.
bool endsShort(WidgetKind kind)
{
    constexpr std::array kinds{WidgetKind::cpu, WidgetKind::disk, WidgetKind::battery, WidgetKind::downloads,
        WidgetKind::focus, WidgetKind::countdown};
    return std::ranges::find(kinds, kind) != kinds.end();
}

/// Kinds whose last line is text up to the right edge.
bool endsWide(WidgetKind kind)
{
    return kind == WidgetKind::memory || kind == WidgetKind::sky || kind == WidgetKind::activity;
}

Box between(const FaceContext& face, double inset)
{
    return face.bounds.adjusted(bar + gutter, inset, -inset, -inset);
}

} // namespace

BauhausSkin::BauhausSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

const QColor& BauhausSkin::barColour(WidgetKind kind) const
{
    switch (kind) {
    case WidgetKind::network:
    case WidgetKind::downloads:
    case WidgetKind::weather: return blue;
    case WidgetKind::photo:
    case WidgetKind::nowPlaying: return yellow;
    default: return style().accent;
    }
}

void BauhausSkin::shapes(Canvas& canvas, const FaceContext& face) const
{
    constexpr double half = 10;
    const Box& bounds = face.bounds;
    const QPointF top(bounds.right() - style().inset - half, bounds.top());
    canvas.fill(slice(squareAbout(top, half), 0.25, 0.5), barColour(face.kind) == blue ? style().accent : blue);
    canvas.fill(slice(squareAbout(bounds.bottomRight(), cornerOf(face)), 0.75, 0.25), yellow);
}

Box BauhausSkin::room(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-10), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, 0, Qt::black, 0.03, 8, 2);
        layer.fill(face.bounds, sheet);
        layer.fill(Box(face.bounds).cutLeft(bar), barColour(face.kind));
        if (face.kind != WidgetKind::clock)
            shapes(layer, face);
        layer.frame(face.bounds, flatPen(faded(ink, 0.18), 1)); // where the desktop behind has the same colour
    });
    return between(face, style().inset);
}

Box BauhausSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    Box content = room(canvas, face);
    if (face.medium())
        content.setRight(face.bounds.right() - cornerMedium - clearance);
    else if (!endsShort(face.kind))
        content.setBottom(face.bounds.bottom() - cornerSmall - (endsWide(face.kind) ? wideLift : 0));
    return content;
}

Box BauhausSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    room(canvas, face);
    Box inside = face.bounds;
    inside.cutLeft(bar);
    return inside;
}

void BauhausSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    shapes(canvas, face);
}

Box BauhausSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double mark = 8;
    const double width = style().dial.width;
    const Box circle = box.square();
    canvas.fill(ringPiece(circle, width, 0, 1), faint);
    if (bounded(fraction) > 0)
        flat(canvas, ringPiece(circle, width, 0, bounded(fraction)), colour);
    canvas.fill(squareAbout(pointOn(circle.center(), (circle.width() - width) / 2, 0), mark / 2), ink);
    return circle.inset(width + 1);
}

void BauhausSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    Box track = box.centred(box.width(), std::min(beam, box.height()));
    canvas.fill(track, faint);
    flat(canvas, track.cutLeft(track.width() * bounded(fraction)), colour);
}

void BauhausSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr int newest = 19;
    Box graph = box;
    canvas.fill(graph.cutBottom(line), ink);
    bars(canvas, graph, history, 1, [&](int index) { return index == newest ? colour : ink; });
}

void BauhausSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr int count = 30;
    Box below = box;
    const Box above = below.cutTop((box.height() - line) / 2);
    canvas.fill(below.cutTop(line), ink);
    bars(canvas, above, reading.downHistory, reading.peak, [&](int) { return style().down; }, {.count = count});
    bars(canvas, below, reading.upHistory, reading.peak, [&](int) { return style().up; },
        {.count = count, .hanging = true});
}

void BauhausSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    Box rest = box;
    const double side = std::max(11.0, cap * 0.66);
    const Box mark = rest.cutLeft(side).centred(side, side * 0.87);
    rest.cutLeft(cap * 0.3);
    flat(canvas, triangle(mark, upwards ? Pointing::up : Pointing::down), upwards ? style().up : style().down);
    canvas.figure(rest, rate.value, rate.unit, figure(cap));
}

void BauhausSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double air = 3; // below the figure
    Box bar = box;
    bar.cutTop(air);
    canvas.fill(bar.cutBottom(line), ink);
    partsBar(canvas, bar, parts, partFills(), faint, 0);
    double end = 0;
    for (const Share& part : parts) {
        end += part.fraction;
        canvas.fill(Box(bar.x() + bar.width() * std::min(1.0, end) - 1, bar.y(), 1, bar.height()), sheet);
    }
}

void BauhausSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double gap = 10;
    constexpr int count = 3;
    const double side = std::min(box.height(), (box.width() - gap * (count - 1)) / count);
    Box places = box.centred(box.width(), side);
    std::array<QPainterPath, count> shapes;
    const std::array colours{valueColour(reading.low), blue, yellow};
    for (std::size_t index = 0; index < count; ++index) {
        const Box place = places.cutLeft(side);
        places.cutLeft(gap);
        QPainterPath& shape = shapes[index];
        if (index == 0)
            shape.addRect(place);
        else if (index == 1)
            shape.addEllipse(place);
        else
            shape = triangle(place, Pointing::up);
        canvas.fill(shape, faint);
        QPainterPath filled;
        filled.addRect(Box(place).cutBottom(side * bounded(reading.level * count - static_cast<double>(index))));
        flat(canvas, shape.intersected(filled), colours[index]);
    }
}

void BauhausSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    skyPicture(canvas, box, sky);
}

void BauhausSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const
{
    const std::array colours{style().accent, blue, yellow, ink};
    constexpr double below = 2; // so that the bar belongs to the name above it
    constexpr double above = 1.5;
    row.cutBottom(below);
    const Box track = row.cutBottom(beam);
    flat(canvas, Box(track).cutLeft(track.width() * bounded(fraction)),
        colours[static_cast<std::size_t>(index) % colours.size()]);
    row.cutBottom(above);
}

void BauhausSkin::separator(Canvas& canvas, const Box& row) const
{
    constexpr double airy = 30; // lower rows have no room for it
    if (row.height() >= airy)
        canvas.fill(Box(row).cutTop(1), faint);
}

void BauhausSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    flat(canvas, line.cutLeft(3).inset(0, 4), colour);
    line.cutLeft(7);
}

void BauhausSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    const Box square = box.centred(12, 12).moved(-4, 0);
    if (done)
        canvas.fill(square, blue);
    else
        canvas.frame(square, flatPen(ink, line));
}

TextStyle BauhausSkin::doneRow() const
{
    return style().row().coloured(soft).struckThrough();
}

void BauhausSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    const Box square = box.centred(8, 8);
    if (lit)
        flat(canvas, square, style().accent);
    else
        canvas.frame(square, flatPen(ink, 1.5));
}

void BauhausSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double height = std::max(line, column.height() * fraction);
    canvas.fill(Box(column).cutBottom(height), now ? style().accent : ink);
}

void BauhausSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    constexpr double ring = 6;
    const Box disc = box.square().inset(ring);
    canvas.disc(box.center(), disc.width() / 2 + ring, ink);
    if (artwork) {
        drawPicture(canvas, arc(disc, 0, 1), artwork.image);
        return;
    }
    canvas.disc(box.center(), disc.width() / 2, faint);
    canvas.symbol(box, u"music.note"_s, disc.width() * 0.4, soft);
}

void BauhausSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    playerKey(canvas, box, symbol, middle ? keySize + 4 : keySize);
}

std::shared_ptr<const FaceRenderer> bauhausSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<BauhausSkin>(accent);
}

} // namespace ambrelle
