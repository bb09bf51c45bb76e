// SPDX-License-Identifier: MIT

#include "skins/hifi/TapeCounter.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

const QColor drumDark(0x1E, 0x1A, 0x17);

// Measures in parts of the digits' height.
constexpr double drumWidth = 0.95;
constexpr double drumHeight = 1.62;
constexpr double pointWidth = 0.32;
constexpr double drumGap = 0.06;
constexpr double unitShare = 0.55;
constexpr double unitGap = 5; // points

bool isPoint(QChar character)
{
    return character == u'.' || character == u',';
}

/// A drum seen from the front: dark above and below.
void drum(Canvas& canvas, const Box& box, bool last)
{
    const QColor body = last ? paper : drumDark;
    canvas.fill(box, body, 2.5);
    Box shade = box;
    canvas.fill(shade.cutTop(box.height() * 0.28), wash(Box(box).cutTop(box.height() * 0.28), Qt::black, 0.7, 0), 2.5);
    const Box below = shade.cutBottom(box.height() * 0.28);
    canvas.fill(below, wash(below, Qt::black, 0, 0.7), 2.5);
    canvas.frame(box, QPen(faded(champagne, 0.35), 0.7), 2.5);
}

} // namespace

double tapeCounter(
    Canvas& canvas, const SkinStyle& style, const Box& box, const QString& value, const QString& unit, double cap)
{
    double cells = 0;
    for (const QChar character : value)
        cells += isPoint(character) ? pointWidth : drumWidth + drumGap;
    const TextStyle text = style.caption().sized(std::max(style.floor, cap * unitShare));
    const double unitWidth = shape(text.face, text.size, unit)->width + unitGap;
    const double size = std::min(cap, (box.width() - unitWidth) / std::max(1.0, cells));
    Box rest = box;
    qsizetype left = value.size();
    for (const QChar character : value) {
        const bool last = --left == 0;
        if (isPoint(character)) {
            const Box gap = rest.cutLeft(size * pointWidth);
            const double radius = std::max(1.2, size * 0.07);
            canvas.disc({gap.center().x() - 0.5, gap.center().y() + size / 2}, radius, style.accent);
            continue;
        }
        const Box cell = rest.cutLeft(size * drumWidth);
        rest.cutLeft(size * drumGap);
        const Box place = cell.centred(cell.width(), size * drumHeight);
        const QString name = u"drum %1 %2"_s.arg(place.x()).arg(last);
        canvas.still(name, place.inset(-1), [&](Canvas& layer) { drum(layer, place, last); });
        const GroundScope ground(canvas, last ? paper : drumDark);
        const QColor ink = last ? print : style.ink;
        canvas.figure(place, QString(character), {}, printed(style, size).aligned(Align::centre).filled(ink));
    }
    const double baseline = box.center().y() + size / 2;
    rest.cutLeft(unitGap);
    canvas.text({rest.x(), baseline - text.size * text.face.capRatio / 2 - 7, unitWidth, 14}, unit, text);
    return rest.x() + unitWidth - unitGap - box.left();
}

} // namespace ambrelle::hifi
