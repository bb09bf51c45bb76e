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

    /// Parts that are no number are stored as 0, and those far beyond any screen as the nearest that is not.
    QJsonObject encode() const;
    /// Nothing when a member is missing or malformed, and then `reader` tells which one.
    static std::optional<SavedWidget> decode(JsonReader& reader);
};

/// A desktop that the user saved: its widgets, and the skin whose wallpaper lay behind them.
struct SavedTheme {
    static constexpr qsizetype longestName = 60; ///< letters

    QUuid id;
    QString name;
    QDateTime created;
    std::optional<Skin> wallpaper; ///< none: the theme has no wallpaper of its own
    QList<SavedWidget> widgets;

    /// The skin of most of its widgets, of several the one that comes first among them; glass without any.
    Skin dominantSkin() const;
    /// The name that a theme gets from what the user wrote: without spaces around it and not too long. May be empty.
    static QString nameFrom(const QString& text);

    bool operator==(const SavedTheme&) const = default;

    /// Without a wallpaper its key is left out; the date is seconds since 2001-01-01 00:00 UTC.
    QJsonObject encode() const;
    /// Nothing when a member is missing or malformed, a widget's too, and then `reader` tells which one.
    static std::optional<SavedTheme> decode(JsonReader& reader);
};

} // namespace ambrelle
