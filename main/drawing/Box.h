// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

#include <algorithm>

namespace ambrelle {

/// A rectangle of a face that is cut into rows and columns: each cut takes a strip away from the box and returns it.
/// Points, origin at the face's upper left corner, y down.
class Box : public QRectF {
public:
    Box() = default;
    Box(double x, double y, double width, double height)
        : QRectF(x, y, width, height)
    {
    }
    Box(const QRectF& rect) // NOLINT(google-explicit-constructor): a box is a rectangle with scissors
        : QRectF(rect)
    {
    }

    Box cutTop(double size)
    {
        size = std::clamp(size, 0.0, height());
        const Box strip(x(), y(), width(), size);
        setTop(top() + size);
        return strip;
    }
    Box cutBottom(double size)
    {
        size = std::clamp(size, 0.0, height());
        const Box strip(x(), bottom() - size, width(), size);
        setBottom(bottom() - size);
        return strip;
    }
    Box cutLeft(double size)
    {
        size = std::clamp(size, 0.0, width());
        const Box strip(x(), y(), size, height());
        setLeft(left() + size);
        return strip;
    }
    Box cutRight(double size)
    {
        size = std::clamp(size, 0.0, width());
        const Box strip(right() - size, y(), size, height());
        setRight(right() - size);
        return strip;
    }

    Box inset(double all) const { return inset(all, all); }
    Box inset(double horizontal, double vertical) const
    {
        return adjusted(horizontal, vertical, -horizontal, -vertical);
    }
    Box moved(double dx, double dy) const { return translated(dx, dy); }
    /// A box of that size around the same centre.
    Box centred(double across, double down) const
    {
        return {center().x() - across / 2, center().y() - down / 2, across, down};
    }
    /// The largest centred square.
    Box square() const { return centred(std::min(width(), height()), std::min(width(), height())); }

    /// Row or column `index` of `count` equal ones with `gap` between them.
    Box row(int index, int count, double gap = 0) const
    {
        const double size = (height() - gap * (count - 1)) / count;
        return {x(), y() + index * (size + gap), width(), size};
    }
    Box column(int index, int count, double gap = 0) const
    {
        const double size = (width() - gap * (count - 1)) / count;
        return {x() + index * (size + gap), y(), size, height()};
    }
};

} // namespace ambrelle
