// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QList>
#include <QRectF>

#include <optional>

namespace ambrelle {

/// A window of another program that the user sees now.
struct OnscreenWindow {
    enum class Layer {
        normal, ///< what people work in
        desktop, ///< the desktop itself and what lies on it
        overlay, ///< docks, menus, tooltips, notifications
    };

    QRectF bounds; ///< global points, y up; with its frame, without its shadow
    double alpha = 1; ///< 0 to 1, of the whole window
    Layer layer = Layer::normal;
    bool isFullScreen = false;

    bool operator==(const OnscreenWindow&) const = default;
};

/// Which windows of other programs are on the screens. Windows that are minimised, of another workspace or put aside to
/// show the desktop are not.
class WindowList : public Port {
public:
    /// In any order; none when the list cannot be had just now.
    virtual std::optional<QList<OnscreenWindow>> windows() const = 0;
    /// While somebody watches, changed() tells that some window appeared, vanished, moved or changed its alpha: a
    /// moment after the first of several changes, and again while they go on; always after the last. While nobody
    /// watches, nothing wakes up.
    virtual void setWatching(bool watching) = 0;
};

} // namespace ambrelle
