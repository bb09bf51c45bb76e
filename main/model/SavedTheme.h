// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"

#include <QDateTime>
#include <QList>
#include <QUuid>

#include <optional>

namespace ambrelle {

/// A widget of a saved desktop, whatever the size of the screen it is brought back to.
struct SavedWidget {
    WidgetConfig config;
    double fx = 0; ///< its lower left corner, as parts of the screen's area without panels and docks, from the left
    double fy = 0; ///< and from the bottom

    bool operator==(const SavedWidget&) const = default;
};

/// A desktop that the user saved: its widgets, and the skin whose wallpaper lay behind them.
struct SavedTheme {
    QUuid id;
    QString name;
    QDateTime created;
    std::optional<Skin> wallpaper; ///< none: the theme has no wallpaper of its own
    QList<SavedWidget> widgets;

    /// The skin of most of its widgets, of several the one that comes first among them; glass without any.
    Skin dominantSkin() const;

    bool operator==(const SavedTheme&) const = default;
};

} // namespace ambrelle
