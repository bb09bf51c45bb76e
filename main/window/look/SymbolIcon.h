// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>

#include <optional>

namespace ambrelle {

/// A named symbol as an icon, drawn anew at every size and pixel ratio; in the palette's text colours unless `ink` is
/// given. A null icon for a name without a symbol.
QIcon symbolIcon(const QString& name, const std::optional<QColor>& ink = std::nullopt);

/// The program's mark in trays: a grid of four tiles on whole pixels, in a colour that shows on light and dark panels.
QIcon markIcon();

/// The program's own icon where it is installed and can be read, else its mark. Not looked up in the icon theme: for
/// that the toolkit reads whole themes, and keeps what it found for ever.
QIcon programIcon();

} // namespace ambrelle
