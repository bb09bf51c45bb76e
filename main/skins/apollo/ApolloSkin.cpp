// SPDX-License-Identifier: MIT

#include "skins/apollo/ApolloSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"
#include "faces/FaceKit.h"
#include "skins/apollo/ApolloPieces.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace apollo;

namespace {

constexpr double unlit = 0.1; // of digits
constexpr double dark = 0.16; // of blocks that are off
constexpr double lean = 10; // degrees, as the digits do
constexpr double traceWidth = 1.4;

} // namespace

ApolloSkin::ApolloSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::segments)
{
}

Box ApolloSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) { console(layer, face, style().corner); });
    return face.bounds.inset(style().inset);
}

/// The title is engraved into the metal, which is deeper there.
void ApolloSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    const Box& bounds = face.bounds;
    const Box band = Box(bounds.inset(rim - 2, 0)).cutTop(bandDepth);
    canvas.still(u"band"_s, band, [&](Canvas& layer) {
        layer.fill(band.adjusted(0, rim - 2, 0, 0), downwards(bounds, {{0, metalLight}, {1, metalDark}}));
        layer.fill(Box(band.inset(2, 0)).cutBottom(1), faded(Qt::black, 0.45));
    });
    const GroundScope ground(canvas, blended(metalLight, metalDark, bandDepth / bounds.height()));
    canvas.text({content.left(), band.top() + 2, content.width(), bandDepth - 2}, title,
        style().header().coloured(cut).engraved(faded(Qt::white, 0.3)));
    content.setTop(band.bottom() + style().titleGap);
}

/// The crosses of a camera's glass plate.
void ApolloSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    constexpr int count = 3;
    constexpr double arm = 4;
    const Box picture = face.bounds.inset(photoMat());
    canvas.still(u"crosses"_s, picture, [&](Canvas& layer) {
        for (int index = 0; index < count * count; ++index) {
            const QPointF middle = picture.column(index % count, count).row(index / count, count).center();
            for (const auto& [offset, colour] :
                {std::pair(0.7, faded(Qt::black, 0.4)), {0.0, faded(Qt::white, 0.85)}}) {
                const Box cross = Box(middle.x(), middle.y(), 0, 0).moved(offset, offset);
                layer.fill(cross.inset(-arm, -0.4), colour);
                layer.fill(cross.inset(-0.4, -arm), colour);
            }
        }
    });
}

FigureStyle ApolloSkin::figure(double cap) const
{
    FigureStyle lit = style().figure(cap).filled(style().accentText()).ghosted(faded(style().accent, unlit));
    lit.unitColour = style().accentText();
    return lit;
}

/// The caution block and the last three are of other colours, lit or not.
Box ApolloSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor&) const
{
    constexpr int count = 20;
    constexpr int caution = 16;
    constexpr double width = 13;
    constexpr double depth = 1.72; // of three quarters of a circle, in radii
    const double radius = std::min(box.width() / 2, box.height() / depth);
    const double above = (box.height() - depth * radius) / 2;
    const Gauge gauge{.centre = {box.center().x(), box.top() + above + radius}, .radius = radius};
    const int lit = litOf(fraction, count);
    gauge.blocks(
        canvas, count, 3.4, width,
        [&](int index) {
            const QColor colour = index < caution ? style().accent
                : index == caution                ? style().accent2
                                                  : style().accent3;
            return index < lit ? colour : faded(colour, dark);
        },
        3);
    return squareAbout(gauge.centre, radius - width - 2);
}

void ApolloSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double pitch = 6;
    const Box bar = box.centred(box.width(), std::min(5.0, box.height()));
    const int count = std::max(1, static_cast<int>(bar.width() / pitch));
    const int lit = litOf(fraction, count);
    blocks(canvas, bar, count, 1.5, [&](int index) { return index < lit ? colour : faded(style().accent, dark); },
        {.slant = lean});
}

void ApolloSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    const QPainterPath line = smoothLine(samplePoints(chartPaper(canvas, box), history, 1));
    graphLine(canvas, line, colour == style().warn ? redInk : print, traceWidth);
    pen(canvas, box, line.currentPosition(), isWriting(history));
}

void ApolloSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const Box graph = chartPaper(canvas, box);
    const MirroredLines lines = mirrored(graph, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(print, 0.14));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(redInk, 0.16));
    canvas.fill(Box(graph.left(), lines.middle - 0.5, box.right() - rail - graph.left(), 1), printSoft);
    graphLine(canvas, lines.upper, print, traceWidth);
    graphLine(canvas, lines.lower, redInk, traceWidth);
    pen(canvas, box, lines.upper.currentPosition(), isWriting(reading.downHistory), 1);
    pen(canvas, box, lines.lower.currentPosition(), isWriting(reading.upHistory), 2);
}

/// The parts step down, so that their ends show in any colours.
void ApolloSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr int count = 24;
    constexpr double step = 0.22; // of the height
    const QList<QBrush> fills = partFills();
    const Box bar = box.centred(box.width(), std::min(14.0, box.height()));
    const auto lamps = [&](const std::optional<qsizetype>& shown, double height, const QBrush& brush) {
        blocks(canvas, Box(bar).cutBottom(height * bar.height()), count, 2,
            [&](int index) { return partAt(parts, (index + 0.5) / count) == shown ? brush : QBrush(); },
            {.slant = lean});
    };
    for (qsizetype part = 0; part < parts.size(); ++part)
        lamps(part, 1 - step * static_cast<double>(part), fills.value(part));
    lamps(std::nullopt, 1 - step * static_cast<double>(parts.size()), faded(style().accent, dark));
}

/// Ten lamps of a bus; red when next to nothing is left.
void ApolloSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int count = 10;
    constexpr double amberBelow = 0.3;
    constexpr double redBelow = 0.12;
    const int lit = std::max(litOf(reading.level, count), reading.level > 0 ? 1 : 0);
    const QColor colour = reading.level < redBelow ? style().warn
        : reading.level < amberBelow               ? style().accent2
                                                   : style().accent;
    for (int index = 0; index < count; ++index)
        lamp(canvas, style(), box.column(index, count, 3), index < lit ? std::optional(colour) : std::nullopt);
}

void ApolloSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double large = 30;
    const QColor glow = style().accentText();
    drawPictogram(canvas, box, sky,
        {.sun = glow,
            .moon = glow,
            .cloud = glow,
            .water = glow,
            .bolt = glow,
            .outline = box.height() < large ? 1.1 : 1.5});
}

TextStyle ApolloSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, style().accent, faceRadius);
}

void ApolloSkin::separator(Canvas& canvas, const Box& row) const
{
    constexpr double below = 1.5; // nearer to the next row's capitals than to descenders
    canvas.rule(Box(row).moved(0, below).cutBottom(1), style().faint, 1);
}

void ApolloSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 14;
    const Box square = Box(box).cutLeft(size).square();
    const LampFace face = lamp(canvas, style(), square, done ? std::optional(style().accent2) : std::nullopt);
    if (done)
        canvas.symbol(square, u"checkmark"_s, size - 3, face.ink);
}

void ApolloSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    lamp(canvas, style(), box.centred(10, 7), lit ? std::optional(style().accent2) : std::nullopt);
}

void ApolloSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double height = std::max(1.0, column.height() * fraction);
    canvas.fill(Box(column).cutBottom(height), now ? style().accent2 : faded(style().accent, 0.6));
}

void ApolloSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    artwork(canvas, box, picture, faceRadius, well, style().soft);
    canvas.frame(box, QPen(metalDark, 1), faceRadius);
}

void ApolloSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool lit) const
{
    const Box cap = box.inset(2, 0);
    const LampFace face = lamp(canvas, style(), cap, lit ? std::optional(style().accent2) : std::nullopt);
    canvas.symbol(cap, symbol, 18, lit ? face.ink : style().ink);
}

std::shared_ptr<const FaceRenderer> apolloSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<ApolloSkin>(accent);
}

} // namespace ambrelle
