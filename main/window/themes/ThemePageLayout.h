// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

namespace ambrelle {

/// What decides how the page of a theme is laid out; points.
struct ThemePageWants {
    QSize page;
    int column = 304; ///< width of what is said of the theme
    int columnHeight = 0; ///< that it would like to have
    int strip = 96; ///< height of the row of neighbours

    bool operator==(const ThemePageWants&) const = default;
};

/// The arithmetic of that page, from left to right; points. The picture is as large as the page lets it be. The column
/// beside it ends with it, but runs on below where it would have to scroll.
struct ThemePageLayout {
    QRect picture;
    QRect column;
    QRect strip; ///< empty: there is no room for it

    static ThemePageLayout of(const ThemePageWants& wants);
    bool operator==(const ThemePageLayout&) const = default;
};

} // namespace ambrelle
