// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

namespace ambrelle {

/// From native pixels of the root window to the toolkit's coordinates. A screen keeps its native place under scaling;
/// only distances from there are scaled.
class NativeScreens {
public:
    struct Screen {
        QRectF geometry; ///< in the toolkit's coordinates
        double pixelRatio = 1;
    };

    NativeScreens(); ///< those of now
    explicit NativeScreens(const QList<Screen>& screens);

    QPointF toolkitPoint(const QPointF& native) const; ///< a place off all screens counts to the nearest
    QRectF toolkitRect(const QRect& native) const; ///< each corner counts to its own screen

private:
    Screen screenAt(const QPointF& native) const;

    QList<Screen> m_screens;
};

} // namespace ambrelle
