// SPDX-License-Identifier: MIT

#pragma once

#include "model/SavedTheme.h"

#include <QByteArray>
#include <QMap>

namespace ambrelle {

/// What a theme file holds.
struct ThemeEnvelope {
    SavedTheme theme;
    QMap<QString, QString> accents{}; ///< "#RRGGBB" by the raw values of skins

    bool operator==(const ThemeEnvelope&) const = default;

    /// Indented JSON with sorted keys; accents of skins that no widget of the theme has are left out.
    QByteArray encode() const;
    /// Nothing of what is no theme file, or has more than ten thousand widgets. Any version is read. Texts that people
    /// see are cut and cleaned as those of others are, accents of unknown skins and malformed ones are left out.
    static std::optional<ThemeEnvelope> decode(const QByteArray& json);

    /// The theme for a list that may hold it already, on a machine with other displays: new identifiers, that date.
    SavedTheme imported(const QDateTime& now) const;
};

} // namespace ambrelle
