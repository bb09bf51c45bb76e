// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/cork/CorkMarks.h"
#include "skins/cork/CorkPaper.h"
#include "skins/cork/CorkSkin.h"
#include "skins/cork/CorkStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cork;

namespace {

/// The figure over the rules of a card, its feet on the third one.
constexpr int heroRules = 3;

/// A scribbled sample of the colour in a key.
void swatch(Canvas& canvas, const Box& box, const QColor& colour, double degrees)
{
    canvas.fill(box, faded(colour, 0.42));
    hatch(canvas, roundedPath(box, 0), degrees, 3, roundPen(colour, 1.4));
}

} // namespace

void CorkSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    constexpr double margin = 10; // beside the graph, for the arrow
    constexpr double headSize = 4.5;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high);
    Box line = box.cutBottom(footerHeight(style()));
    box.cutBottom(Bands::gap);
    const Box side = box.cutRight(margin);
    box.cutLeft(1);
    history(canvas, box, reading.history, valueColour(reading.high));

    const QString now = Wording::tr("now");
    named(canvas, line, reading.load, style().caption(), now, style().caption().coloured(style().ink));
    // From the word up to the newest sample.
    const double newest = box.bottom() - box.height() * std::clamp(reading.history.value(59), 0.0, 1.0);
    const QPointF tip(box.right() + 4.5, std::min(newest + 0.5, box.bottom() - 4));
    const QPointF foot(side.right() - 3, line.top() - 0.5);
    const QPointF bend(side.right() + 2, tip.y());
    canvas.still(
        u"now"_s, side.adjusted(-6, -6, 6, 10),
        [&](Canvas& layer) {
            QPainterPath arrow(foot);
            arrow.quadTo(bend, tip);
            arrow.addPath(arrowHead(tip, bend, headSize));
            layer.stroke(arrow, roundPen(style().ink, 1.3));
        },
        std::round(tip.y() * 2));
}

void CorkSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double sample = 8;
    Box box = framed(canvas, face);
    Box upper = box.cutTop(heroRules * rulePitch);
    upper.setBottom(upper.bottom() - rulePitch / 2 + belowCapitals);
    if (reading.high) {
        warning(canvas, Box(upper).cutRight(12));
        upper.cutRight(12 + Bands::gap);
    }
    canvas.figure(upper.cutBottom(style().heroCap + 3), reading.used, reading.unit, figure(style().heroCap));
    parts(canvas, box.cutTop(rulePitch).moved(0, 2), reading.parts);
    const QList<QBrush> fills = partFills();
    rows(box, reading.parts.size(), rulePitch, [&](const Box& row, qsizetype index) {
        Box line = row;
        const Box place = line.cutLeft(sample).centred(sample, sample);
        const QColor colour = fills.value(index).color();
        const double degrees = index == 0 ? 58 : index == 1 ? -58 : 90;
        canvas.still(
            u"swatch"_s, place.inset(-2), [&](Canvas& layer) { swatch(layer, place, colour, degrees); }, colour,
            degrees);
        line.cutLeft(Bands::gap);
        keyLine(canvas, line, reading.parts, index, style().caption().coloured(style().ink), style().caption());
    });
}

void CorkSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 38;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.low, cap);
    footer(canvas, *this, box, reading.line());
    charge(canvas, box, reading);
}

/// Five names on the rules of a card, with an empty line below the title.
void CorkSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    Box box = framed(canvas, face);
    box.cutTop(rulePitch);
    processRows(canvas, *this, box.cutTop(most * rulePitch), reading, most);
}

} // namespace ambrelle
