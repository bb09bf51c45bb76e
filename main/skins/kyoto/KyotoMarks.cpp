// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/kyoto/KyotoPieces.h"
#include "skins/kyoto/KyotoSkin.h"
#include "skins/kyoto/KyotoStyle.h"

#include <algorithm>

// The small marks of lists and rounds.

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace kyoto;

void KyotoSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double size = 15;
    static const QString numerals = u"一二三四五六七八"_s;
    kanji(canvas, line.cutLeft(size), numerals.mid(index % numerals.size(), 1), size, style().ink, 0.45);
    line.cutLeft(5);
}

void KyotoSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype) const
{
    constexpr double numeral = 20; // the room of the row's mark
    constexpr double brush = 2.2;
    Box track = row.cutBottom(3);
    track.cutLeft(numeral);
    const double y = track.center().y();
    if (bounded(fraction) > 0)
        canvas.line({track.left(), y}, {track.left() + track.width() * bounded(fraction), y},
            roundPen(faded(style().ink, 0.3), brush));
}

void KyotoSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    const Box bar = line.cutLeft(3).inset(0, 3);
    canvas.line({bar.center().x(), bar.top()}, {bar.center().x(), bar.bottom()}, roundPen(colour, 3));
    line.cutLeft(9);
}

void KyotoSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double side = 13;
    const Box square = box.centred(side, side);
    if (!done) {
        enso(canvas, square, 0.93, 1.6, style().ink);
        return;
    }
    canvas.fill(square, style().accent, sealCorner);
    QPainterPath tick(square.center() + QPointF(-3.6, 0.2));
    tick.lineTo(square.center() + QPointF(-1, 3));
    tick.lineTo(square.center() + QPointF(3.8, -3.4));
    canvas.paint([&](QPainter& painter) { painter.strokePath(tick, roundPen(inkOn(style().accent), 1.6)); });
}

TextStyle KyotoSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

void KyotoSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    if (lit)
        canvas.disc(box.center(), 3.2, style().accent);
    else
        canvas.paint(
            [&](QPainter& painter) { painter.strokePath(circle(box.center(), 2.8), QPen(style().soft, 0.9)); });
}

void KyotoSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double width = 0.72 * column.width();
    const double height = std::max(width / 2, column.height() * fraction);
    const double x = column.center().x();
    canvas.fill(dab({x - width / 2, column.bottom() - height, width, height}), now ? style().accent : style().ink);
}

} // namespace ambrelle
