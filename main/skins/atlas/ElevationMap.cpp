// SPDX-License-Identifier: MIT

#include "skins/atlas/ElevationMap.h"

#include "drawing/RGBA.h"

#include <cmath>

namespace ambrelle {

ElevationMap::ElevationMap(const Perlin& field, double width, double height, double spacing)
    : m_spacing(spacing)
    , m_columns(static_cast<int>(std::ceil(width / spacing)) + 2)
    , m_rows(static_cast<int>(std::ceil(height / spacing)) + 2)
{
    m_heights.reserve(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows));
    for (int row = 0; row < m_rows; ++row)
        for (int column = 0; column < m_columns; ++column)
            m_heights.push_back(static_cast<float>(field.fbm(2.1 * column * spacing, 2.1 * row * spacing, 5, 2)));
}

double ElevationMap::Land::steepness() const
{
    return std::sqrt(right * right + up * up);
}

ElevationMap::Land ElevationMap::at(double x, double y) const
{
    const double column = std::clamp(x / m_spacing, 0.0, m_columns - 1.001);
    const double row = std::clamp(y / m_spacing, 0.0, m_rows - 1.001);
    const auto left = static_cast<std::size_t>(column);
    const auto low = static_cast<std::size_t>(row);
    const double u = column - static_cast<double>(left);
    const double v = row - static_cast<double>(low);
    const float* corner = m_heights.data() + low * static_cast<std::size_t>(m_columns) + left;
    const double a = corner[0];
    const double b = corner[1];
    const double c = corner[m_columns];
    const double d = corner[m_columns + 1];
    return {mix(mix(a, b, u), mix(c, d, u), v), mix(b - a, d - c, v) / m_spacing, mix(c - a, d - b, u) / m_spacing};
}

} // namespace ambrelle
