// SPDX-License-Identifier: MIT

#pragma once

#include "model/ThemeEnvelope.h"

namespace ambrelle {

class ThemeAccent;
class ThemeStore;

/// Saved desktops as files, from which other machines take them. Who asks for the files, and what is said about those
/// that are none, is up to the window.
class ThemeFiles {
public:
    static constexpr QLatin1StringView extension{"ambrelle"};

    ThemeFiles(ThemeStore& themes, ThemeAccent& accents)
        : m_themes(themes)
        , m_accents(accents)
    {
    }

    /// The contents of a theme file; nothing of anything else, at once, whatever stands at the path. A theme without a
    /// name has that of its file. Any thread.
    static std::optional<ThemeEnvelope> read(const QString& path);
    /// Adds the theme to the saved ones as made at `now`, and sets the accents that come with it; gives the theme that
    /// was added. Nothing, and nothing is changed, when there is no room for it.
    std::optional<SavedTheme> take(const ThemeEnvelope& file, const QDateTime& now);
    /// Reads and takes.
    std::optional<SavedTheme> importFile(const QString& path, const QDateTime& now);

    /// Writes the theme, with the accents of its skins, in place of what the file held: whole or not at all. Gives the
    /// sentence that says what failed; empty on success.
    QString exportTo(const QString& path, const SavedTheme& theme) const;
    /// The same for what is in it. Any thread.
    static QString write(const QString& path, const ThemeEnvelope& file);
    /// The name proposed for the theme's file, which any file system takes.
    static QString fileName(const SavedTheme& theme);

private:
    ThemeStore& m_themes;
    ThemeAccent& m_accents;
};

} // namespace ambrelle
