// SPDX-License-Identifier: MIT

#include "skins/overdrive/OverdriveSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"
#include "drawing/PictureTreatment.h"
#include "faces/FaceKit.h"
#include "skins/overdrive/OverdrivePieces.h"
#include "skins/overdrive/OverdriveStyle.h"
#include "skins/Skins.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace overdrive;

namespace {

constexpr double bottomInset = 18; // above the serial number
constexpr double smallCut = 3.5; // of marks
constexpr double bracketAir = 2; // between a graph and its brackets

} // namespace

OverdriveSkin::OverdriveSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::segments)
{
}

Box OverdriveSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds, [&](Canvas& layer) {
        const QString serial = u"AMB-07 // "_s + rawValue(face.kind).toString().toUpper();
        hazardPlate(layer, style(), face.bounds, serial);
    });
    return content(face);
}

Box OverdriveSkin::content(const FaceContext& face) const
{
    const double inset = style().inset;
    return face.bounds.adjusted(inset, inset, -inset, -bottomInset);
}

/// Our own labels are lettering of the hardware; what users wrote keeps its letters, which the condensed face has no
/// small ones of.
void OverdriveSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    constexpr double written = 12.5; // pixels
    const TextStyle label = style().header().coloured(style().accentText());
    const bool ours = title == style().caps(title);
    Typeface typed = style().body;
    typed.weight = 700;
    canvas.text(content.cutTop(headerHeight), title, ours ? label : label.faced(typed).sized(written));
    content.cutTop(style().titleGap);
}

Box OverdriveSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    constexpr double top = 9; // below the hazard strip
    plate(canvas, face);
    return face.bounds.adjusted(photoMat(), top, -photoMat(), -bottomInset + 3);
}

void OverdriveSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    constexpr double inside = 12;
    brackets(canvas, face.bounds.adjusted(inside, inside + 3, -inside, -inside - 9), cyan);
}

FigureStyle OverdriveSkin::figure(double cap) const
{
    FigureStyle figure = style().figure(cap);
    figure.unitColour = style().soft;
    return figure;
}

Box OverdriveSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr int reserve = 4; // blocks at the end, of their own colour
    constexpr double air = 3; // between the blocks and the line around them
    constexpr double openShare = 0.75; // of the radius that a dial reaches below its centre
    const DialMeasures& dial = style().dial;
    const double radius = std::min(box.width() / 2, box.height() / (1 + openShare));
    const QPointF centre(box.center().x(), box.center().y() + radius * (1 - openShare) / 2);
    const Gauge gauge{.centre = centre, .radius = radius - air, .start = dial.start, .sweep = dial.sweep};
    const int lit = BlockRow{.count = dial.count}.lit(fraction);
    const auto brush = [&](int index) -> QBrush {
        if (index >= lit)
            return style().faint;
        return index < dial.count - reserve ? colour : style().accent3;
    };
    canvas.still(
        u"dial"_s, squareAbout(centre, radius + 1),
        [&](Canvas& layer) {
            layer.stroke(gauge.arc(0, 1, radius - 0.5), flatPen(cyan, 1));
            gauge.blocks(layer, dial.count, dial.gap, dial.width, brush);
        },
        lit, colour);
    return squareAbout(centre, radius - air - dial.width - 2);
}

void OverdriveSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double height = 6;
    BlockRow{.unlit = style().faint}.draw(
        canvas, box.centred(box.width(), std::min(height, box.height())), fraction, colour);
}

void OverdriveSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double busy = 0.85;
    brackets(canvas, box, cyan);
    BarGraph{.colour = colour, .limit = busy}.draw(canvas, box.inset(bracketAir), history);
}

void OverdriveSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double width = 6;
    constexpr double apart = 1; // of both graphs from the line between them
    constexpr double leastShare = 0.2; // of the height for the lesser rate
    const auto highest = [&](const History& history) {
        const double most = history.isEmpty() ? 0 : *std::ranges::max_element(history);
        return std::max(most, reading.peak * 0.01);
    };
    const double down = highest(reading.downHistory);
    const double up = highest(reading.upHistory);
    const double share = std::clamp(down / (down + up), leastShare, 1 - leastShare);
    // One scale for both, on which noise stays low.
    const double whole = std::max({down / share, up / (1 - share), reading.peak});
    brackets(canvas, box, style().soft);
    Box below = box.inset(bracketAir);
    const Box above = below.cutTop(std::round(below.height() * share));
    canvas.fill(below.cutTop(apart), style().soft);
    const BarGraph downloads{.colour = style().down, .width = width, .top = whole * share};
    const BarGraph uploads{.colour = style().up, .width = width, .top = whole * (1 - share), .hanging = true};
    downloads.draw(canvas, above.adjusted(0, 0, 0, -apart), reading.downHistory);
    uploads.draw(canvas, below.adjusted(0, apart, 0, 0), reading.upHistory);
}

void OverdriveSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double height = 10;
    constexpr double lean = 2.5;
    const Box bar = box.centred(box.width(), height);
    partsBar(canvas, bar, parts, partFills(), style().faint, 0);
    double end = 0;
    for (const Share& part : parts) {
        end += part.fraction;
        const double x = bar.left() + bar.width() * std::min(1.0, end);
        if (x < bar.right() - lean)
            canvas.line({x + lean, bar.top() - 1}, {x - lean, bar.bottom() + 1}, flatPen(plateColour, 2));
    }
}

/// Ink in place of a colour that the accent would be taken for.
QList<QBrush> OverdriveSkin::partFills() const
{
    const QColor& accent = style().accent;
    const auto distinct = [&](const QColor& colour) {
        constexpr int alike = 90; // sum of the differences of all components, 0 to 255 each
        const int difference = std::abs(colour.red() - accent.red()) + std::abs(colour.green() - accent.green())
            + std::abs(colour.blue() - accent.blue());
        return difference < alike ? style().ink : colour;
    };
    return {accent, distinct(cyan), distinct(red)};
}

void OverdriveSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double labelSize = 13;
    constexpr double symbol = 15;
    constexpr double most = 24;
    const TextStyle label = readOut(style(), labelSize, cyan);
    Box rest = box;
    const Box heading = rest.cutTop(labelSize);
    rest.cutTop(4);
    stamped(canvas, {heading.left(), Canvas::baseline(heading, label)}, label, u"CELL"_s);
    if (!reading.remaining.isEmpty()) // else the face says the state
        canvas.text(heading, reading.state, style().caption().aligned(Align::right));
    Box cells = rest.cutTop(std::min(most, rest.height()));
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(cells.cutRight(symbol), reading.symbol, symbol, style().ink);
        cells.cutRight(4);
    }
    const BlockRow row{.count = 10, .gap = 2, .slant = 16, .unlit = style().faint};
    row.draw(canvas, cells, reading.level, valueColour(reading.low));
}

void OverdriveSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    skyPicture(canvas, style(), box, sky);
}

TextStyle OverdriveSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    constexpr double size = 19;
    slab(canvas, cell.centred(size, std::min(size, cell.height() + 2)), smallCut, style().accent, true);
    canvas.setGround(style().accent);
    return day.coloured(inkOn(style().accent));
}

void OverdriveSkin::rowMark(Canvas& canvas, Box& row, qsizetype index) const
{
    constexpr double size = 13;
    constexpr double width = 19;
    const QString ordinal = u"%1/"_s.arg(index + 1, 2, 10, QLatin1Char('0'));
    canvas.text(row.cutLeft(width), ordinal, readOut(style(), size, cyan));
}

void OverdriveSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype) const
{
    constexpr double below = 3; // so that the bar belongs to the name above it
    row.cutBottom(below);
    Box track = row.cutBottom(2);
    canvas.fill(track, style().faint);
    canvas.fill(track.cutLeft(track.width() * bounded(fraction)), style().accent);
}

void OverdriveSkin::separator(Canvas& canvas, const Box& row) const
{
    constexpr double below = 1; // nearer to the next row's capitals than to descenders
    canvas.fill(Box(row).cutBottom(1).moved(0, below), style().faint);
}

void OverdriveSkin::eventMark(Canvas& canvas, Box& row, const QColor& colour) const
{
    canvas.fill(row.cutLeft(3).inset(0, 4), colour);
    row.cutLeft(6);
}

void OverdriveSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 13;
    const Box square = Box(box).cutLeft(size).centred(size, size);
    slab(canvas, square, smallCut, style().accent, done);
    if (done)
        canvas.symbol(square, u"checkmark"_s, size - 2, inkOn(style().accent));
}

TextStyle OverdriveSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

void OverdriveSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    slab(canvas, box.centred(9, 8), smallCut, lit ? style().accent : style().soft, lit, 1);
}

void OverdriveSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    canvas.fill(Box(column).cutBottom(std::max(1.0, column.height() * fraction)),
        now ? style().accent : faded(style().accent, older));
}

void OverdriveSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    constexpr double cut = 14;
    constexpr double pitch = 4;
    const auto still = [&](Canvas& layer) {
        if (artwork)
            drawPicture(
                layer, slabPath(box, cut), artwork.image, PictureTreatment::duotone(plateColour, style().accent));
        else
            layer.symbol(box, u"music.note"_s, box.height() * 0.4, style().soft);
        layer.within(slabPath(box, cut), [&] {
            for (double y = box.top(); y < box.bottom(); y += pitch)
                layer.fill(Box(box.left(), y, box.width(), pitch / 2), faded(Qt::black, 0.3));
        });
        slab(layer, box, cut, style().accent, false);
    };
    canvas.still(u"cover"_s, box.inset(-1), still, artwork.image);
}

void OverdriveSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double cut = 7;
    constexpr double size = 17;
    const Box cap = box.centred(30, 22);
    slab(canvas, cap, cut, style().accent, middle);
    canvas.symbol(cap, symbol, size, middle ? inkOn(style().accent) : style().ink);
}

std::shared_ptr<const FaceRenderer> overdriveSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<OverdriveSkin>(accent);
}

} // namespace ambrelle
