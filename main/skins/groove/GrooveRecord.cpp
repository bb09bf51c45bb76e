// SPDX-License-Identifier: MIT

#include "skins/groove/GrooveRecord.h"

#include "drawing/Arc.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/PictureTreatment.h"
#include "skins/groove/GrooveStyle.h"

#include <QtMath>

#include <cmath>

namespace ambrelle::groove {

using namespace Qt::StringLiterals;

namespace {

const QColor vinyl(0x1E, 0x0F, 0x07);

constexpr double labelRadius = 26;
constexpr double spindle = 2.6;

constexpr double armLength = 75;
constexpr double armReach = 12; // from the record's right edge to the arm's pivot
constexpr double armDrop = 7; // from the box's upper edge to it
constexpr double runIn = 5; // between the record's edge and the first groove
constexpr double runOut = 4; // between the last one and the label

/// Black vinyl with six rings and two lights on it.
void disc(Canvas& canvas, QPointF centre, double radius)
{
    constexpr int rings = 6;
    canvas.disc(centre, radius, vinyl);
    const QColor light = faded(Qt::white, 0.17);
    const QColor dark = faded(Qt::white, 0);
    canvas.disc(centre, radius - 1.5,
        conical(centre, 0.02,
            {{0, dark}, {0.12, light}, {0.22, dark}, {0.5, dark}, {0.62, light}, {0.72, dark}, {1, dark}}));
    QPainterPath grooves;
    const double pitch = (radius - labelRadius - runIn - runOut) / (rings - 1);
    for (int ring = 0; ring < rings; ++ring)
        grooves.addEllipse(centre, labelRadius + runOut + ring * pitch, labelRadius + runOut + ring * pitch);
    canvas.stroke(grooves, QPen(faded(Qt::black, 0.55), 1.2));
    canvas.stroke(grooves.translated(0, 0.8), QPen(faded(Qt::white, 0.08), 0.6));
}

void paperLabel(Canvas& canvas, const SkinStyle& style, QPointF centre, const Picture& artwork)
{
    const Box circle = squareAbout(centre, labelRadius);
    canvas.disc(centre, labelRadius, style.accent);
    if (artwork) {
        drawPicture(canvas, arc(circle.inset(1.5), 0, 1), artwork.image);
    } else {
        canvas.disc(centre, labelRadius - 5, style.accent2);
        canvas.symbol(Box(circle).cutTop(labelRadius), u"music.note"_s, 14, cocoa);
    }
    canvas.disc(centre, spindle, style.ink);
}

/// Where the needle stands: on the groove of that distance from the record's centre.
QPointF needleAt(QPointF pivot, QPointF centre, double distance)
{
    const QLineF way(pivot, centre);
    const double d = way.length();
    const double cosine = (d * d + armLength * armLength - distance * distance) / (2 * d * armLength);
    QLineF arm = way;
    arm.setLength(armLength);
    arm.setAngle(way.angle() + qRadiansToDegrees(std::acos(std::clamp(cosine, -1.0, 1.0))));
    return arm.p2();
}

void toneArm(Canvas& canvas, const SkinStyle& style, const Box& record, const NowPlayingReading& reading)
{
    constexpr double parked = 10; // beyond the record
    constexpr double headLength = 11;
    const double radius = record.width() / 2;
    const QPointF pivot = record.topRight() + QPointF(armReach, armDrop);
    const double distance =
        reading.playing ? std::lerp(radius - runIn, labelRadius + runOut, bounded(reading.progress)) : radius + parked;
    const QLineF arm(pivot, needleAt(pivot, record.center(), distance));
    canvas.disc(pivot, 8, recess);
    canvas.line(arm.p1(), arm.p2(), roundPen(style.ink, 2.6));
    canvas.line(arm.pointAt(1 - headLength / armLength), arm.p2(), roundPen(style.accent2, 6));
    canvas.disc(pivot, 4, style.accent2);
}

} // namespace

void recordPlayer(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading)
{
    const Box record = box.square();
    const QPointF centre = record.center();
    canvas.still(u"record"_s, record.inset(-1), [&](Canvas& layer) { disc(layer, centre, record.width() / 2); });
    const auto turned = [&](Canvas& on, double turns) {
        on.turned(centre, turns * 360, [&] { paperLabel(on, style, centre, reading.artwork); });
    };
    if (reading.playing)
        canvas.moving(squareAbout(centre, labelRadius + 1), Motion::steady(12),
            [&](Canvas& moving, double t) { turned(moving, std::fmod(t, secondsPerTurn) / secondsPerTurn); });
    else
        turned(canvas, 0);
    toneArm(canvas, style, record, reading);
}

} // namespace ambrelle::groove
