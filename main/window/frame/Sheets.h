// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/Sheet.h"

namespace ambrelle {

/// The questions and failures of the main window, ready to be asked.
namespace sheets {

inline constexpr QLatin1StringView cancel("cancel");
inline constexpr QLatin1StringView accept("accept"); ///< the action, and "OK"
inline constexpr QLatin1StringView keepWallpaper("keepWallpaper");

/// Before a theme replaces the widgets, from its card: with its wallpaper (`accept`) or without (`keepWallpaper`).
/// `oneScreen`: only the widgets of one of several screens are concerned.
SheetContent applyTheme(const QString& theme, bool oneScreen);
/// The same where it has been chosen already what to apply, by a button with the text `action`.
SheetContent applyTheme(const QString& theme, bool oneScreen, const QString& action);
/// The name of a desktop that becomes a theme, and of `screens`, the main one first, which it is taken from; a choice
/// only where there are several.
SheetContent save(const QString& name, const QStringList& screens);
SheetContent removeTheme(const QString& theme);
SheetContent importFailed(const QString& fileName);
/// `sentence` as the login item gives it: its refusal, then the reason.
SheetContent loginRefused(const QString& sentence);
/// `screen` empty: on all of them.
SheetContent removeAll(int widgets, const QString& screen);
/// `forgetsFolders`: the user added folders with calendars.
SheetContent reset(bool forgetsFolders = false);
SheetContent shortcuts();
/// Something to be read, and no question.
SheetContent told(const QString& title, const QString& text);

} // namespace sheets
} // namespace ambrelle
