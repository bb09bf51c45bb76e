// SPDX-License-Identifier: MIT

#include "platform/x11/window/RoundedRows.h"

#include <QRegion>

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

xcb_rectangle_t rectangle(int x, int y, int width, int height)
{
    return {
        static_cast<int16_t>(x), static_cast<int16_t>(y), static_cast<uint16_t>(width), static_cast<uint16_t>(height)};
}

} // namespace

std::vector<xcb_rectangle_t> roundedRows(const QRect& area, double corner)
{
    if (area.isEmpty())
        return {};
    const double radius = std::clamp(corner, 0.0, std::min(area.width(), area.height()) / 2.0);
    const int rows = static_cast<int>(std::ceil(radius));
    std::vector<xcb_rectangle_t> result;
    const auto inset = [radius](int row) {
        const double height = radius - (row + 0.5);
        return static_cast<int>(std::lround(radius - std::sqrt(std::max(0.0, radius * radius - height * height))));
    };
    for (int row = 0; row < rows; ++row) {
        const int side = inset(row);
        const int width = area.width() - 2 * side;
        result.push_back(rectangle(area.x() + side, area.y() + row, width, 1));
        result.push_back(rectangle(area.x() + side, area.bottom() - row, width, 1));
    }
    if (area.height() > 2 * rows)
        result.push_back(rectangle(area.x(), area.y() + rows, area.width(), area.height() - 2 * rows));
    return result;
}

std::vector<xcb_rectangle_t> shapeRows(const QPolygonF& shape)
{
    std::vector<xcb_rectangle_t> result;
    for (const QRect& part : QRegion(shape.toPolygon(), Qt::WindingFill))
        result.push_back(rectangle(part.x(), part.y(), part.width(), part.height()));
    return result;
}

} // namespace ambrelle
