// SPDX-License-Identifier: MIT

#pragma once

#include <QPen>

namespace ambrelle {

/// A solid line with round ends and corners.
inline QPen roundPen(const QBrush& brush, double width)
{
    return {brush, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace ambrelle
