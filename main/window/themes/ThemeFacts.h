// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"
#include "window/frame/MainWindowModel.h"

#include <optional>

namespace ambrelle {

class ThemeStore;

/// What is said of a theme on its page.
struct ThemeFacts {
    QString title;
    QString tagline; ///< of one that the user saved, when that was
    bool isLight = false;
    bool isSaved = false; ///< by the user, who may name it
    std::optional<Skin> skin; ///< of the catalogue; it may have an accent, and a counterpart
    std::optional<Skin> wallpaper;
    QList<WidgetKind> kinds; ///< of its widgets, in their order

    /// Nothing for a theme that is there no more.
    static std::optional<ThemeFacts> of(const ThemeChoice& theme, const ThemeStore& store);
    bool operator==(const ThemeFacts&) const = default;
};

} // namespace ambrelle
