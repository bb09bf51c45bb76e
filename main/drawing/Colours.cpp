// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

double linearised(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linearised(colour.redF()) + 0.7152 * linearised(colour.greenF())
        + 0.0722 * linearised(colour.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor over(const QColor& top, const QColor& ground)
{
    QColor mixed = blended(ground, top, top.alphaF());
    mixed.setAlphaF(1);
    return mixed;
}

QColor faded(const QColor& colour, double opacity)
{
    QColor result = colour;
    result.setAlphaF(static_cast<float>(colour.alphaF() * opacity));
    return result;
}

QColor blended(const QColor& from, const QColor& to, double t)
{
    const auto mix = [t](float a, float b) { return static_cast<float>(a + (b - a) * t); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()), mix(from.blueF(), to.blueF()),
        mix(from.alphaF(), to.alphaF()));
}

QColor legible(const QColor& colour, const QColor& ink, const QColor& ground, double ratio)
{
    constexpr double step = 0.08;
    for (double share = 0; share < 1; share += step) {
        const QColor candidate = blended(colour, ink, share);
        if (contrast(candidate, ground) >= ratio)
            return candidate;
    }
    return ink;
}

QColor inkOn(const QColor& fill)
{
    return contrast(Qt::black, fill) >= contrast(Qt::white, fill) ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace ambrelle
