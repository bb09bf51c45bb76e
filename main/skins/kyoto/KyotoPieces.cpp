// SPDX-License-Identifier: MIT

#include "skins/kyoto/KyotoPieces.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/HandLine.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "drawing/Ribbon.h"
#include "drawing/SeededRandom.h"
#include "skins/kyoto/KyotoStyle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle::kyoto {

using namespace Qt::StringLiterals;

namespace {

constexpr double knobReach = 4; // of the rods' ends beside the sheet
constexpr double hairPitch = 0.42; // between the hairs of the brush
constexpr double ensoStart = 190.0 / 360; // turns, a little left of the foot

void rodAcross(Canvas& canvas, const Box& place)
{
    constexpr double knob = 3; // radius of its ends
    const QBrush wood = downwards(
        place, {{0, blended(rodColour, Qt::white, 0.22)}, {0.35, rodColour}, {1, blended(rodColour, Qt::black, 0.35)}});
    for (const double x : {place.left() - knobReach, place.right() - 2 * knob + knobReach})
        canvas.fill(Box(x, place.center().y() - knob, 2 * knob, 2 * knob), wood, knob);
    canvas.fill(place, wood);
}

void layFibres(QPainter& painter, const Box& sheet, std::uint64_t seed)
{
    constexpr int count = 80;
    const QColor pale = faded(Qt::white, 0.6);
    const QColor straw = faded(silkColour, 0.3);
    SeededRandom random{seed};
    painter.setClipRect(sheet);
    for (int index = 0; index < count; ++index) {
        const double x = random.in(sheet.left(), sheet.right());
        const double y = random.in(sheet.top(), sheet.bottom());
        const QPointF from(x, y);
        const double angle = random.in(0, 2 * std::numbers::pi);
        const QPointF way = QPointF(std::cos(angle), std::sin(angle)) * random.in(5, 20);
        const QPointF aside = QPointF(-way.y(), way.x()) * random.in(-0.3, 0.3);
        QPainterPath fibre(from);
        fibre.quadTo(from + way / 2 + aside, from + way);
        painter.strokePath(fibre, QPen(index % 3 == 0 ? straw : pale, random.in(0.35, 0.7)));
    }
}

/// The way of one hair of the brush round the circle, in turns from where the stroke begins.
struct Hair {
    double from = 0;
    double wet = 0; ///< up to here it is full of ink
    double lifted = 0; ///< where it leaves the paper
    double back = 0; ///< where it comes down again, its ink spent
    double end = 0;
    double opacity = 1;
    double breadth = hairPitch; ///< points
};

/// `aside` is its place in the brush, from -1 at the inner edge to 1 at the outer one.
Hair hairOf(double aside, double whole, double width, SeededRandom& random)
{
    constexpr double dry = 0.35; // of the hairs leave the paper on their way
    const double drying = std::min({0.16, 0.3 * whole, 0.025 * width}); // turns in which all of them run out
    Hair hair;
    hair.from = (0.02 * aside * aside + random.in(0, 0.008)) * std::min(1.0, 4 * whole);
    const double spent = random.in(0, 1);
    hair.end = whole - spent * random.in(0.1, 1) * drying * (0.25 + 0.75 * std::abs(aside + 0.2));
    const double ink = random.in(0, 1);
    const double gap = whole * random.in(0.45, 0.8);
    hair.lifted = ink < dry ? gap : hair.end;
    hair.back = ink < dry ? gap + 0.1 * whole * ink / dry : hair.end;
    hair.opacity = random.in(0.55, 0.95);
    hair.breadth = hairPitch * random.in(0.9, 2);
    hair.wet = whole * random.in(0.3, 0.55);
    return hair;
}

/// One leaf of bamboo from its root, a press and a lift of the brush.
QPainterPath leaf(QPointF root, double degrees, double length)
{
    const double belly = 0.13 * length;
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(0.15 * length, -belly, 0.45 * length, -belly, length, 0);
    path.cubicTo(0.5 * length, 0.8 * belly, 0.2 * length, 0.8 * belly, 0, 0);
    return QTransform().translate(root.x(), root.y()).rotate(degrees).map(path);
}

/// A piece between two joints, a little narrower in its middle.
QPainterPath piece(const Box& box)
{
    const double waist = 0.1 * box.width();
    constexpr double lip = 0.8;
    QPainterPath path(box.topLeft());
    path.quadTo({box.center().x(), box.top() - lip}, box.topRight());
    path.quadTo({box.right() - waist, box.center().y()}, box.bottomRight());
    path.quadTo({box.center().x(), box.bottom() + lip}, box.bottomLeft());
    path.quadTo({box.left() + waist, box.center().y()}, box.topLeft());
    return path;
}

} // namespace

void kanji(Canvas& canvas, const Box& box, const QString& text, double size, const QColor& ink, double press)
{
    const bool lying = box.width() > box.height();
    canvas.still(
        u"kanji"_s, box.inset(-2),
        [&](Canvas& layer) {
            for (int index = 0; index < text.size(); ++index) {
                QPainterPath sign = outlineOf(*shape(calligraphy(), size, text.mid(index, 1)));
                const int count = static_cast<int>(text.size());
                const QPointF place = (lying ? box.column(index, count) : box.row(index, count)).center();
                sign.translate(place - sign.boundingRect().center());
                sign.setFillRule(Qt::WindingFill);
                layer.paint([&](QPainter& painter) {
                    painter.setPen(press > 0 ? roundPen(ink, press) : QPen(Qt::NoPen));
                    painter.setBrush(ink);
                    painter.drawPath(sign);
                });
            }
        },
        text, size, ink, press);
}

void scroll(Canvas& canvas, const Box& face, std::uint64_t seed)
{
    constexpr double shadow = 4; // below the upper rod
    dropShadow(canvas, face, 0, Qt::black, 0.03, 6, 2);
    canvas.fill(face, sheetColour);
    canvas.paint([&](QPainter& painter) { layFibres(painter, face, seed); });
    Box sheet = face;
    for (const Box& border : {sheet.cutLeft(silkWidth), sheet.cutRight(silkWidth)})
        canvas.fill(border, silkColour);
    for (const double x : {sheet.left(), sheet.right()})
        canvas.fill(Box(x - 0.3, sheet.top(), 0.6, sheet.height()), faded(rodColour, 0.28));
    Box upper = face;
    rodAcross(canvas, upper.cutTop(rodWidth));
    rodAcross(canvas, upper.cutBottom(rodWidth));
    const Box below = upper.cutTop(shadow);
    canvas.fill(below, downwards(below, {{0, faded(rodColour, 0.2)}, {1, faded(rodColour, 0)}}));
}

void seal(Canvas& canvas, const Box& box, const QColor& red)
{
    constexpr double size = 15;
    constexpr double press = 0.55;
    canvas.fill(box, red, sealCorner);
    canvas.frame(box.inset(1.2), QPen(faded(inkOn(red), 0.35), 0.5), sealCorner / 2);
    kanji(canvas, box, u"京"_s, size, inkOn(red), press);
}

void enso(Canvas& canvas, const Box& circle, double fraction, double width, const QColor& ink)
{
    const double whole = bounded(fraction);
    if (whole <= 0)
        return;
    const double middle = (circle.square().width() - width) / 2;
    const int hairs = std::max(3, static_cast<int>(std::lround(width / hairPitch)));
    canvas.paint([&](QPainter& painter) {
        SeededRandom random{31};
        painter.setBrush(Qt::NoBrush);
        for (int index = 0; index < hairs; ++index) {
            const double aside = 2.0 * index / (hairs - 1) - 1;
            const Hair hair = hairOf(aside, whole, width, random);
            const Box ring = squareAbout(circle.center(), middle + aside * (width - hairPitch) / 2);
            const auto draw = [&](double from, double to, double opacity, double breadth) {
                if (to > from)
                    painter.strokePath(arc(ring, ensoStart + from, to - from), roundPen(faded(ink, opacity), breadth));
            };
            draw(hair.from, hair.lifted, hair.opacity, hair.breadth);
            draw(hair.back, hair.end, 0.8 * hair.opacity, 0.8 * hair.breadth);
            draw(hair.from, hair.wet, 0.5, hair.breadth);
        }
    });
}

Box insideEnso(const Box& circle, double width)
{
    return circle.square().inset(width + 1);
}

QPainterPath circle(QPointF centre, double radius)
{
    return arc(squareAbout(centre, radius), 0, 1);
}

QPainterPath brushLine(const QPolygonF& line, double thin, double broad)
{
    constexpr double apart = 1.8; // of its points, so that it costs little
    const QPolygonF points = thinned(line, apart);
    QList<double> steep;
    QList<double> along{0};
    for (qsizetype index = 1; index < points.size(); ++index) {
        const QPointF way = points[index] - points[index - 1];
        const double length = std::max(1e-6, std::hypot(way.x(), way.y()));
        steep.append(std::abs(way.y()) / length);
        along.append(along.last() + length);
    }
    const auto slopeAt = [&](qsizetype index) {
        return steep.value(std::clamp<qsizetype>(index, 0, steep.size() - 1));
    };
    return ribbon(
        points,
        [&](double part) {
            const double place = part * along.last();
            const auto next = std::ranges::upper_bound(along, place) - along.begin();
            const double slope = (slopeAt(next - 2) + 2 * slopeAt(next - 1) + slopeAt(next)) / 4;
            return thin + (broad - thin) * slope;
        },
        true);
}

QPainterPath frayed(const Box& box)
{
    constexpr double tooth = 0.8; // height of a hair that stands out
    constexpr double most = 1; // by which it does
    SeededRandom random{7};
    QPolygonF edge;
    const double reach = std::min(most, box.width() / 3);
    for (double y = box.top(); y <= box.bottom() + 0.01; y += tooth)
        edge << QPointF(box.right() - random.in(0, reach), y);
    for (double y = box.bottom(); y >= box.top() - 0.01; y -= tooth)
        edge << QPointF(box.left() + random.in(0, 0.5 * reach), y);
    QPainterPath path;
    path.addPolygon(edge);
    path.closeSubpath();
    return path;
}

QPainterPath dab(const Box& box)
{
    const double tip = 0.2 * box.width(); // half of its breadth where the brush leaves
    const double round = std::min(box.width(), 0.4 * box.height());
    const double x = box.center().x();
    QPainterPath path(box.bottomLeft());
    path.cubicTo(
        {box.left(), box.center().y()}, {x - 1.6 * tip, box.top() + round}, {x - tip, box.top() + 0.3 * round});
    path.quadTo({x + 0.3 * tip, box.top() - 0.3 * round}, {x + 1.4 * tip, box.top() + 0.5 * round});
    path.cubicTo({x + 2 * tip, box.top() + 2 * round}, {box.right(), box.center().y()}, box.bottomRight());
    path.closeSubpath();
    return path;
}

void bamboo(Canvas& canvas, const Box& box, int count, int full, const QColor& fill, const QColor& outline)
{
    constexpr double gap = 1.6;
    constexpr double line = 0.9;
    for (int index = 0; index < count; ++index) {
        const Box place = box.row(count - 1 - index, count, gap);
        if (index < full)
            canvas.fill(piece(place),
                across(place,
                    {{0, blended(fill, Qt::black, 0.16)}, {0.35, fill}, {0.55, blended(fill, sheetColour, 0.22)},
                        {1, fill}}));
        else
            canvas.paint(
                [&](QPainter& painter) { painter.strokePath(piece(place.inset(line / 2)), QPen(outline, line)); });
    }
    const Box joint = box.row(1, count, gap);
    const QColor green = full > 0 ? fill : outline;
    canvas.fill(leaf(joint.topLeft(), 200, 15), faded(green, 0.7));
    canvas.fill(leaf(joint.topLeft(), 172, 22), faded(green, 0.85));
    canvas.fill(leaf(joint.topLeft(), 144, 18), green);
}

} // namespace ambrelle::kyoto
