// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

class QScreen;

namespace ambrelle {

/// Where a window of the layers goes: one output, and a place on it in the compositor's points.
struct LayerPlace {
    QScreen* screen = nullptr; ///< null while none is connected
    QRect place; ///< from the output's upper left corner
    double factor = 1; ///< factorOf() its screen

    /// The compositor's points in one of the toolkit's, on that screen: the user may have asked for larger ones.
    static double factorOf(const QScreen& screen);
    /// That of a rectangle in the toolkit's points: on the screen that shows most of it, else on the nearest.
    static LayerPlace of(const QRect& rect);

    bool operator==(const LayerPlace&) const = default;
};

} // namespace ambrelle
