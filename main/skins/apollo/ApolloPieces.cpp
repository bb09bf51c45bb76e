// SPDX-License-Identifier: MIT

#include "skins/apollo/ApolloPieces.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "drawing/Ribbon.h"
#include "faces/FaceKit.h"

#include <algorithm>
#include <cmath>

namespace ambrelle::apollo {

using namespace Qt::StringLiterals;

namespace {

const QColor oxide(0x5A, 0x40, 0x30); ///< recording tape

constexpr double windowRadius = 2;
constexpr double windowHeight = 12; // beyond that of its digits
constexpr double unitGap = 5;

constexpr double nib = 8; // length of a pen
constexpr double penTremble = 0.8; // points
constexpr double instrumentRate = 8; // frames a second
constexpr double idle = 0.002; // below it a pen rests

constexpr double secondsPerTurn = 3;

/// Points beside digits in their window.
double airOf(const FigureStyle& figure)
{
    return std::clamp(figure.cap * 0.2, 3.0, 7.0);
}

QColor shadow(double opacity)
{
    return faded(Qt::black, opacity);
}

QColor light(double opacity)
{
    return faded(Qt::white, opacity);
}

/// As many digits as a register has, those before the number unlit.
QString padded(QString value, int places)
{
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    const auto missing = places - std::ranges::count_if(value, isDigit);
    return QString(std::max<qsizetype>(0, missing), QChar(0x2007)) + value;
}

void paperShade(Canvas& canvas, const Box& box)
{
    canvas.fill(Box(box).cutTop(5), downwards(Box(box).cutTop(5), {{0, shadow(0.3)}, {1, shadow(0)}}));
}

/// A printed grid that ends at the lower right corner.
void printedGrid(Canvas& canvas, const Box& box)
{
    constexpr double pitch = 5;
    constexpr int heavy = 5;
    const auto colour = [](int index) { return index % heavy == 0 ? grid.darker(115) : grid; };
    for (int index = 1; index * pitch < box.width(); ++index)
        canvas.fill(Box(box.right() - index * pitch, box.top(), 0.6, box.height()), colour(index));
    for (int index = 1; index * pitch < box.height(); ++index)
        canvas.fill(Box(box.left(), box.bottom() - index * pitch, box.width(), 0.6), colour(index));
}

/// The lower edge where sheets are torn off.
QPainterPath tornSheet(const Box& box)
{
    constexpr double tooth = 3;
    QPolygonF edge{box.topLeft(), box.topRight()};
    const int teeth = static_cast<int>(box.width() / tooth);
    for (int index = 0; index <= 2 * teeth; ++index)
        edge.append({box.right() - box.width() * index / (2 * teeth), box.bottom() - (index % 2 == 0 ? 1.4 : 0)});
    QPainterPath path = straightLine(edge);
    path.closeSubpath();
    return path;
}

/// What turns of a reel: three spokes and the hub.
void spokes(Canvas& canvas, QPointF centre, double radius, double turns)
{
    constexpr int count = 3;
    for (int spoke = 0; spoke < count; ++spoke) {
        const double place = turns + static_cast<double>(spoke) / count;
        canvas.line(centre, pointOn(centre, radius - 1.5, place), flatPen(metalLight, radius * 0.3));
    }
    canvas.disc(centre, radius * 0.4, metalLight.lighter(118));
    canvas.disc(centre, radius * 0.17, well);
    for (int notch = 0; notch < count; ++notch) {
        const double place = turns + (notch + 0.5) / count;
        canvas.disc(pointOn(centre, radius * 0.29, place), radius * 0.055, cut);
    }
}

/// The radius of wound tape in parts of its reel's, in steps: its area grows evenly with `share`.
double wound(double share)
{
    constexpr double least = 0.5;
    constexpr double most = 0.88;
    const double area = std::lerp(least * least, most * most, std::clamp(share, 0.0, 1.0));
    return std::round(std::sqrt(area) * 40) / 40;
}

void reel(Canvas& canvas, const Box& box, double share, bool playing)
{
    const QPointF centre = box.center();
    const double radius = box.height() / 2;
    const double tape = wound(share) * radius;
    canvas.still(
        u"reel"_s, box.inset(-1),
        [&](Canvas& layer) {
            layer.disc(centre, radius, well);
            layer.disc(centre, tape, oxide);
            for (double ring = tape - 2; ring > radius * 0.4; ring -= 2)
                layer.stroke(arc(squareAbout(centre, ring), 0, 1), QPen(light(0.08), 0.6));
            layer.stroke(arc(squareAbout(centre, radius - 1), 0, 1),
                QPen(downwards(box, {{0, metalLight.lighter(120)}, {1, metalDark}}), 2));
        },
        tape);
    if (!playing) {
        spokes(canvas, centre, radius, 0);
        return;
    }
    canvas.moving(squareAbout(centre, radius), Motion::steady(instrumentRate), [=](Canvas& frame, double time) {
        spokes(frame, centre, radius, -std::fmod(time, secondsPerTurn) / secondsPerTurn);
    });
}

} // namespace

void console(Canvas& canvas, const FaceContext& face, double corner)
{
    const Box& bounds = face.bounds;
    dropShadow(canvas, bounds, corner, Qt::black, 0.05, 7, 1);
    canvas.fill(bounds, downwards(bounds, {{0, metalLight}, {1, metalDark}}), corner);
    canvas.frame(bounds, QPen(downwards(bounds, {{0, light(0.45)}, {0.12, light(0.12)}, {1, shadow(0.3)}}), 1), corner);
    const Box inner = bounds.inset(rim);
    canvas.frame(
        inner.inset(-0.8), QPen(downwards(inner, {{0, shadow(0.45)}, {1, light(0.3)}}), 0.8), faceRadius + 0.8);
    canvas.fill(inner, panel, faceRadius);
    if (!face.medium())
        return;
    for (const double place : {0.12, 0.88})
        fastener(canvas, {bounds.left() + bounds.width() * place, bounds.bottom() - rim / 2}, 2);
}

void fastener(Canvas& canvas, QPointF centre, double radius)
{
    const QPointF slot = QPointF(0.5, 0.4) * radius;
    canvas.disc(centre, radius, cut);
    canvas.disc(centre, radius * 0.75, metalLight.lighter(140));
    canvas.fill(ribbon({centre - slot, centre + slot}, radius * 0.35), cut);
}

void window(Canvas& canvas, const Box& box)
{
    canvas.fill(box, well, windowRadius);
    canvas.frame(box, QPen(downwards(box, {{0, shadow(0.8)}, {0.5, shadow(0.35)}, {1, light(0.16)}}), 1), windowRadius);
}

void digits(Canvas& canvas, const Box& box, const Units::Pair& value, int places, const FigureStyle& figure)
{
    canvas.still(u"window"_s, box, [&](Canvas& layer) { window(layer, box); });
    const GroundScope ground(canvas, well);
    canvas.figure(box.inset(airOf(figure), 0), padded(value.value, places), value.unit, figure.aligned(Align::right));
}

Box heroRegister(Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, bool marked,
    double cap, int places)
{
    constexpr double mark = 14;
    const SkinStyle& style = skin.style();
    const FigureStyle figure = skin.figure(cap);
    const TextStyle unit = label(style).sized(std::max(style.captionSize, cap * 0.55));
    const double unitWidth = shape(unit.face, unit.size, value.unit)->width + 1;
    Box band = content.cutTop(cap + windowHeight);
    content.cutTop(style.titleGap);
    const double wanted = figureWidth(padded(value.value, places), {}, figure, 2 * band.width()) + 2 * airOf(figure);
    const Box box = band.cutLeft(std::min(wanted, band.width() - unitGap - unitWidth));
    digits(canvas, box, {value.value, {}}, places, figure);
    band.cutLeft(unitGap);
    Box beside = band.cutLeft(unitWidth);
    if (marked)
        skin.warning(canvas, Box(beside).cutTop(mark).moved(0, 2));
    const double capital = unit.size * unit.face.capRatio;
    canvas.text(beside.moved(0, (cap - capital) / 2), value.unit, unit);
    return band;
}

Box chartPaper(Canvas& canvas, const Box& box)
{
    Box sheet = box.inset(1);
    const Box track = sheet.cutRight(rail);
    canvas.still(u"chart"_s, box, [&](Canvas& layer) {
        window(layer, box);
        layer.fill(sheet, paper);
        printedGrid(layer, sheet);
        paperShade(layer, sheet);
        layer.fill(track, across(track, {{0, metalDark.darker(150)}, {0.5, metalDark}, {1, metalDark.darker(135)}}));
    });
    sheet.cutRight(nib);
    return sheet.adjusted(0, 5, 0, -4);
}

void pen(Canvas& canvas, const Box& chart, QPointF tip, bool writing, double seed)
{
    constexpr double half = 3;
    const auto draw = [=](Canvas& frame, double stray) {
        const QPointF point = tip + QPointF(0, stray);
        const double foot = chart.right() - 1 - rail;
        QPainterPath arm(point);
        arm.lineTo(foot, point.y() - half);
        arm.lineTo(foot + rail, point.y() - half);
        arm.lineTo(foot + rail, point.y() + half);
        arm.lineTo(foot, point.y() + half);
        arm.closeSubpath();
        frame.fill(arm, redInk);
        frame.fill(Box(foot, point.y() - 0.5, rail, 1), light(0.5));
    };
    if (!writing) {
        draw(canvas, 0);
        return;
    }
    const double reach = half + 2 * penTremble + 1;
    const Box area(tip.x() - 1, tip.y() - reach, chart.right() - tip.x(), 2 * reach);
    canvas.moving(area, Motion::steady(instrumentRate), [=](Canvas& frame, double time) {
        draw(frame, penTremble * (Wave::wobble(time, seed) - Wave::wobble(0, seed)));
    });
}

bool isWriting(const History& history)
{
    return !history.isEmpty() && history.last() > idle;
}

Box teletype(Canvas& canvas, const Box& box)
{
    constexpr double margin = 10; // with the holes
    constexpr double pitch = 9;
    constexpr double hole = 1.5;
    const Box sheet = box.inset(-5, -4);
    canvas.still(u"teletype"_s, sheet.inset(-3), [&](Canvas& layer) {
        const QPainterPath shape = tornSheet(sheet);
        layer.fill(shape.translated(0, 1.2), shadow(0.45));
        layer.fill(shape, paper);
        layer.fill(sheet, across(sheet, {{0, shadow(0.08)}, {0.1, shadow(0)}, {0.9, shadow(0)}, {1, shadow(0.1)}}));
        for (const double x : {sheet.left() + margin / 2, sheet.right() - margin / 2}) {
            for (double y = sheet.top() + pitch * 0.8; y < sheet.bottom() - hole * 2; y += pitch)
                layer.disc({x, y}, hole, panel);
        }
        for (const double x : {sheet.left() + margin, sheet.right() - margin})
            layer.line({x, sheet.top()}, {x, sheet.bottom() - 2}, QPen(grid, 0.8, Qt::DotLine));
        paperShade(layer, sheet);
    });
    return sheet.inset(margin + 3, 5);
}

void endOfLine(Canvas& canvas, Box& line, const TextStyle& text)
{
    canvas.text(line.cutRight(text.size), u"/"_s, text.aligned(Align::right));
}

LampFace lamp(Canvas& canvas, const SkinStyle& style, const Box& box, const std::optional<QColor>& colour)
{
    const QColor ground = colour.value_or(well);
    canvas.fill(box, ground, windowRadius);
    if (colour)
        canvas.fill(box, downwards(box, {{0, light(0.25)}, {0.4, light(0)}, {1, shadow(0.12)}}), windowRadius);
    canvas.frame(box, QPen(colour ? colour->darker(150) : metalDark, 1), windowRadius);
    return {ground, colour ? inkOn(ground) : style.soft};
}

void lamp(
    Canvas& canvas, const SkinStyle& style, const Box& box, const QString& letters, const std::optional<QColor>& colour)
{
    const LampFace face = lamp(canvas, style, box, colour);
    const GroundScope ground(canvas, face.ground);
    canvas.text(box, letters, label(style).coloured(face.ink).aligned(Align::centre));
}

void reels(Canvas& canvas, const Box& box, double progress, bool playing)
{
    Box rest = box;
    reel(canvas, rest.cutLeft(box.height()), 1 - progress, playing);
    reel(canvas, rest.cutRight(box.height()), progress, playing);
}

} // namespace ambrelle::apollo
