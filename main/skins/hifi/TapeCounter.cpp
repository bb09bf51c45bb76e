#include "skins/hifi/TapeCounter.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"

namespace ambrelle::hifi {

namespace {

const QColor drumDark(0x1E, 0x1A, 0x17);

// Measures in parts of the digits' height.
constexpr double drumWidth = 0.95;
constexpr double drumHeight = 1.62;
constexpr double pointWidth = 0.32;
constexpr double drumGap = 0.06;

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
    const TextStyle text = style.caption();
    const double unitWidth = shape(text.face, text.size, unit)->width + 5;
    const double size = std::min(cap, (box.width() - unitWidth) / std::max(1.0, cells));
    const double height = size * drumHeight;
    double x = box.left();
    qsizetype left = value.size();
    const GroundScope outside(canvas, canvas.ground());
    for (const QChar character : value) {
        const bool last = --left == 0;
        if (isPoint(character)) {
            canvas.disc({x + size * pointWidth / 2 - 0.5, box.center().y() + size / 2}, std::max(1.2, size * 0.07),
                style.accent);
            x += size * pointWidth;
            continue;
        }
        const Box place(x, box.center().y() - height / 2, size * drumWidth, height);
        drum(canvas, place, last);
        canvas.setGround(last ? paper : drumDark);
        FigureStyle digit = printed(style, size).aligned(Align::centre);
        digit.fill = last ? print : style.ink;
        canvas.figure(place, QString(character), {}, digit);
        x += size * (drumWidth + drumGap);
    }
    canvas.setGround(style.ground);
    const double baseline = box.center().y() + size / 2;
    canvas.text({x + 5, baseline - text.size * text.face.capRatio / 2 - 7, unitWidth, 14}, unit, text);
    return x + unitWidth - box.left();
}

} // namespace ambrelle::hifi
