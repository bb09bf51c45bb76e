// SPDX-License-Identifier: MIT

#pragma once

#include <QPen>

namespace ambrelle {

/// A solid line with round ends and corners.
inline QPen roundPen(const QBrush& brush, double width)
{
    return {brush, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A solid line cut straight at its ends, with sharp corners.
inline QPen flatPen(const QBrush& brush, double width)
{
    return {brush, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

} // namespace ambrelle
