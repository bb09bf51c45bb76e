// SPDX-License-Identifier: MIT

#pragma once

#include "model/SavedTheme.h"

namespace ambrelle {

class ThemeAccent;

/// As people write a day in little room, where they are: "14 Nov 2026".
QString mediumDate(const QDate& day);
/// What a theme of the catalogue is found by.
QString searchedText(Skin skin);
/// What a saved desktop is found by.
QString searchedText(const SavedTheme& theme);
/// "10 widgets · 14 Nov 2026".
QString captionOf(const SavedTheme& theme);
/// What a card shows, for those who cannot see it.
QString spokenOf(Skin skin, bool onDesktop, const ThemeAccent& accents);
QString spokenOf(const SavedTheme& theme, bool onDesktop);

} // namespace ambrelle
