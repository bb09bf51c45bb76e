// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPointer>
#include <QRect>
#include <QScreen>

namespace ambrelle {

/// Where a window of the layers goes: one output, and a place on it in the compositor's points.
struct LayerPlace {
    QPointer<QScreen> screen; ///< null while none is connected, and once it has gone
    QRect place; ///< from the output's upper left corner
    double factor = 1; ///< factorOf() its screen

    /// Those that can show something: the toolkit has one without a name while there is none, and one without a size
    /// before the compositor has told it.
    static QList<QScreen*> usableScreens();
    /// The compositor's points in one of the toolkit's, on that screen: the user may have asked for larger ones.
    static double factorOf(const QScreen& screen);
    /// That of a rectangle in the toolkit's points: on the screen that shows most of it, else on the nearest.
    static LayerPlace of(const QRect& rect);
    static LayerPlace on(QScreen& screen, const QRect& rect); ///< wherever on it or beside it that is
    /// The screens that show something of such a rectangle.
    static QList<QScreen*> screensShowing(const QRect& rect);
};

} // namespace ambrelle
