// SPDX-License-Identifier: MIT

#include "skins/night/CarbonPieces.h"

#include "drawing/Charts.h"
#include "drawing/Fraction.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle::carbon {

double leanOf(double height)
{
    return std::tan(slant * std::numbers::pi / 180) * height;
}

QPainterPath leaning(const Box& box)
{
    const QPointF lean(leanOf(box.height()), 0);
    QPainterPath path = straightLine(
        {box.topLeft() + lean, box.topRight(), box.bottomRight() - lean, box.bottomLeft(), box.topLeft() + lean});
    path.closeSubpath();
    return path;
}

void leaningBlocks(
    Canvas& canvas, const Box& box, double height, int count, const std::function<QBrush(int index)>& brushOf)
{
    const Box row = box.centred(box.width(), std::min(height, box.height()));
    blocks(canvas, row, count, barGap, brushOf, {.slant = slant});
}

QTransform shearAbout(const Box& box, double degrees)
{
    QTransform shear = QTransform::fromTranslate(box.center().x(), box.center().y());
    shear.shear(-std::tan(degrees * std::numbers::pi / 180), 0);
    return shear.translate(-box.center().x(), -box.center().y());
}

void bars(Canvas& canvas, const Box& box, const QList<double>& samples, double top, const QBrush& fill, bool hanging)
{
    const int count = static_cast<int>(samples.size());
    for (int index = 0; index < count; ++index) {
        Box column = box.column(index, count, barGap);
        const double height = std::max(1.0, column.height() * bounded(samples[index] / top));
        canvas.fill(hanging ? column.cutTop(height) : column.cutBottom(height), fill);
    }
}

QPainterPath twillIn(const Box& box)
{
    constexpr double bundle = 2;
    constexpr int repeat = 4;
    QPainterPath path;
    for (int row = 0; row * bundle < box.height(); ++row) {
        const double shift = (row % repeat) * bundle;
        for (double x = box.left() - shift; x < box.right(); x += repeat * bundle)
            path.addRect(Box(x, box.top() + row * bundle, 2 * bundle, bundle) & box);
    }
    return path;
}

} // namespace ambrelle::carbon
