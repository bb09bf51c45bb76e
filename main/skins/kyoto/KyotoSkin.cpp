// SPDX-License-Identifier: MIT

#include "skins/kyoto/KyotoSkin.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/kyoto/KyotoPieces.h"
#include "skins/kyoto/KyotoStyle.h"
#include "skins/Skins.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace kyoto;

namespace {

constexpr double overhang = 8; // of knobs and shadow beside the sheet
constexpr double hairline = 0.9;

/// Painters set their seal at the foot; where words or figures reach that far, at the head.
enum class SealPlace { foot, head, none };

SealPlace sealPlace(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::memory:
    case WidgetKind::countdown:
    case WidgetKind::reminders:
    case WidgetKind::sky: return SealPlace::head;
    case WidgetKind::calendar: // today wears it
    case WidgetKind::photo: return SealPlace::none;
    default: return SealPlace::foot;
    }
}

bool isList(WidgetKind kind)
{
    using enum WidgetKind;
    return kind == processes || kind == events || kind == reminders || kind == devices;
}

/// How a sky is written.
struct SkySign {
    QString sign;
    double ink = 1;
    bool sun = false; ///< with a red sun above
    bool moon = false; ///< with a crescent
};

SkySign signOf(Sky sky)
{
    constexpr double light = 0.55; // of a drizzle
    switch (sky) {
    case Sky::clear: return {.sign = u"晴"_s};
    case Sky::clearNight: return {.sign = u"晴"_s, .moon = true};
    case Sky::partly: return {.sign = u"曇"_s, .sun = true};
    case Sky::partlyNight: return {.sign = u"曇"_s, .moon = true};
    case Sky::cloudy: return {.sign = u"曇"_s};
    case Sky::fog: return {.sign = u"霧"_s};
    case Sky::drizzle: return {.sign = u"雨"_s, .ink = light};
    case Sky::rain: return {.sign = u"雨"_s};
    case Sky::snow: return {.sign = u"雪"_s};
    case Sky::thunder: return {.sign = u"雷"_s};
    case Sky::unknown: break;
    }
    return {.sign = u"一"_s};
}

} // namespace

KyotoSkin::KyotoSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

QColor KyotoSkin::thinned() const
{
    return blended(sheetColour, style().ink, thinInk);
}

Box KyotoSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    constexpr double apart = 3; // between the seal and the edges of the sheet
    constexpr double air = 3; // above it
    constexpr double raised = 2; // at the head, off the line below
    Box content = face.bounds.inset(style().inset);
    Box stamp(face.bounds.right() - silkWidth - apart - sealSide, face.bounds.bottom() - rodWidth - apart - sealSide,
        sealSide, sealSide);
    const SealPlace place = sealPlace(face.kind);
    if (place == SealPlace::head)
        stamp =
            Box(content.right() - sealSide, content.top() + (headerLine - sealSide) / 2 - raised, sealSide, sealSide);
    canvas.still(u"plate"_s, face.bounds.inset(-overhang), [&](Canvas& layer) {
        scroll(layer, face.bounds, static_cast<std::uint64_t>(face.kind) + 1);
        if (place != SealPlace::none)
            seal(layer, stamp, style().accent);
    });
    if (place == SealPlace::foot)
        content.setBottom(stamp.top() - air);
    return content;
}

void KyotoSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    Box line = content.cutTop(headerLine);
    if (sealPlace(face.kind) == SealPlace::head)
        line.cutRight(sealSide + Bands::gap);
    canvas.text(line, title, style().header());
    const Box gap = content.cutTop(style().titleGap);
    if (isList(face.kind))
        canvas.rule(gap.moved(0, -0.5), style().soft, hairline);
}

Box KyotoSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    constexpr double mat = 6;
    plate(canvas, face);
    return face.bounds.inset(silkWidth + mat, rodWidth + mat);
}

FigureStyle KyotoSkin::figure(double cap) const
{
    FigureStyle figure = style().figure(cap);
    figure.unitColour = style().soft;
    return figure;
}

Box KyotoSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    return dialOf(canvas, box, fraction, colour == style().accent ? style().ink : colour);
}

Box KyotoSkin::dialOf(Canvas& canvas, const Box& box, double fraction, const QColor& ink) const
{
    constexpr double width = 7.5;
    constexpr double steps = 400; // round the circle
    const Box circle = box.square().inset(1);
    const double shown = std::round(bounded(fraction) * steps) / steps;
    canvas.still(
        u"dial"_s, circle.inset(-1), [&](Canvas& layer) { enso(layer, circle, shown, width, ink); }, shown, ink);
    return insideEnso(circle, width);
}

void KyotoSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double radius = 3.2;
    constexpr double brush = 2;
    const double y = box.center().y();
    const double x = box.left() + radius + (box.width() - 2 * radius) * bounded(fraction);
    canvas.fill(Box(box.left(), y - hairline / 2, box.width(), hairline), style().faint);
    if (fraction > 0)
        canvas.line({box.left(), y}, {x, y}, roundPen(style().ink, brush));
    canvas.disc({x, y}, radius, colour);
}

void KyotoSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double radius = 2.8; // of the mark at the peak
    constexpr double thin = 1;
    constexpr double broad = 4;
    const Box room = box.adjusted(1, radius, -2, -broad / 2);
    const QPolygonF points = samplePoints(room, history, 1);
    const QPainterPath line = smoothLine(points);
    canvas.fill(areaUnder(line, box.bottom()), ambrelle::wash(box, style().ink, shade, 0.03));
    canvas.rule(Box(box.x(), box.bottom() - 1, box.width(), 2), style().faint, 1);
    const QList<QPolygonF> stretches = line.toSubpathPolygons();
    if (points.isEmpty() || stretches.isEmpty())
        return;
    canvas.fill(brushLine(stretches.first(), thin, broad), style().ink);
    canvas.disc(points.last(), 1.6, style().ink);
    const auto higher = [](QPointF one, QPointF other) { return one.y() < other.y(); };
    const auto peak = std::ranges::min_element(points.rbegin(), points.rend(), higher); // the latest of equals
    canvas.disc(*peak, radius, colour);
}

void KyotoSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double thin = 1;
    constexpr double broad = 3.4;
    constexpr double apart = 1.6; // so that two idle lines are seen
    const MirroredLines lines = mirrored(box.inset(1, broad / 2), reading.downHistory, reading.upHistory, reading.peak);
    const auto draw = [&](const QPainterPath& line, const QColor& colour, double aside) {
        const QPainterPath moved = line.translated(0, aside);
        canvas.fill(areaUnder(moved, lines.middle), faded(colour, shade));
        for (const QPolygonF& stretch : moved.toSubpathPolygons())
            canvas.fill(brushLine(stretch, thin, broad), colour);
    };
    canvas.fill(Box(box.x(), lines.middle - 0.5, box.width(), 1), style().faint);
    draw(lines.upper, style().down, -apart);
    draw(lines.lower, style().up, apart);
}

void KyotoSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double height = 7;
    constexpr double gap = 1.2;
    const QList<QBrush> fills = partFills();
    const Box bar = box.centred(box.width(), std::min(height, box.height()));
    canvas.fill(Box(bar.x(), bar.center().y() - 0.5, bar.width(), 1), style().faint);
    Box left = bar;
    for (qsizetype index = 0; index < std::min(parts.size(), fills.size()); ++index) {
        const Box piece = left.cutLeft(bar.width() * bounded(parts[index].fraction));
        if (piece.width() > gap)
            canvas.fill(frayed(piece.adjusted(0, 0, -gap, 0)), fills[index]);
    }
}

QList<QBrush> KyotoSkin::partFills() const
{
    return {style().accent, style().accent2, style().accent3};
}

void KyotoSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int joints = 10;
    const int full = reading.percent > 0 ? std::max(1, litOf(reading.level, joints)) : 0;
    bamboo(canvas, box, joints, full, reading.low ? style().warn : style().up, thinned());
}

void KyotoSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double large = 40; // size from which the brush presses no harder
    const Box square = box.square();
    const double size = square.width();
    const SkySign sign = signOf(sky);
    kanji(canvas, square, sign.sign, size, faded(style().ink, sign.ink), size < large ? 0.4 : 0.3);
    const double radius = std::max(sign.moon ? 2.9 : 2.2, 0.085 * size);
    const QPointF above(square.right() - radius / 2, square.top() + radius / 2);
    if (sign.sun)
        canvas.disc(above, radius, vermilion);
    if (sign.moon)
        canvas.fill(circle(above, radius).subtracted(circle(above + QPointF(0.5, -0.4) * radius, 0.85 * radius)),
            style().accent2);
}

TextStyle KyotoSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, style().accent, sealCorner);
}

void KyotoSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double margin = 6;
    constexpr double border = 0.8;
    canvas.fill(box, mountColour);
    canvas.paint([&](QPainter& painter) {
        painter.setPen(QPen(silkColour, border));
        painter.drawRect(box.inset(border / 2));
    });
    artwork(canvas, box.inset(margin), picture, 0, style().faint, style().soft);
}

void KyotoSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    canvas.symbol(box, symbol, middle ? 24 : 20, style().ink);
}

std::shared_ptr<const FaceRenderer> kyotoSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<KyotoSkin>(accent);
}

} // namespace ambrelle
