// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QList>
#include <QPolygonF>
#include <QRectF>
#include <QString>

namespace ambrelle {

/// What a canvas was asked to write, for audits of a layout without looking at pixels. Face points, y down,
/// whatever moved or turned it.
struct CanvasMark {
    enum class Kind { text, figure, symbol };

    Kind kind = Kind::text;
    QString text{};
    QRectF box{}; ///< where it may stand
    QRectF ink{}; ///< where it stands
    QPolygonF corners{}; ///< of the ink, exact also where it is turned
    double size = 0; ///< pixels
    QColor colour{};
    QColor ground{}; ///< opaque colour behind it
    bool axis = false;
    bool cut = false; ///< shortened by an ellipsis, or by a shape that it stands in
};

using CanvasRecord = QList<CanvasMark>;

} // namespace ambrelle
