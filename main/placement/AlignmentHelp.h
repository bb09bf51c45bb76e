// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

namespace ambrelle {

/// Brings a dragged widget in line with its neighbours and its screen: edges with edges and centres with centres, and
/// next to a neighbour also at the distance that layouts keep. Each axis is settled by itself, by the nearest line, and
/// depends on nothing but the place asked for, so that the widget never jitters. Global points.
class AlignmentHelp {
public:
    static constexpr double reach = 6; ///< how far a line attracts
    static constexpr double gap = 10; ///< between the widgets of a layout
    static constexpr double thickness = 3; ///< of a guide

    struct Result {
        QPointF origin;
        QList<QRectF> guides; ///< thin, one for each line that the widget lies on, on the screen
    };

    AlignmentHelp(QList<QRectF> neighbours, QList<ScreenInfo> screens);

    /// Where `wanted` comes to lie. Only what is on its screen counts; without a screen it stays.
    Result align(const QRectF& wanted) const;

private:
    QList<QRectF> m_neighbours;
    QList<ScreenInfo> m_screens;
};

} // namespace ambrelle
