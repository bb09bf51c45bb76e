// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QSet>
#include <QString>

namespace ambrelle {

/// What themes.json says where some of its pictures could not be made.
namespace SiteLosses {

/// The catalogue without the pictures `missing`, by their names in it. Widgets, decorations and accents go one by one;
/// a theme goes whole without its desktop, its wallpaper or all its widgets, a demonstration without the theme's own
/// accent or any other one. No theme may be left.
QJsonObject without(QJsonObject catalogue, const QSet<QString>& missing);

} // namespace SiteLosses

} // namespace ambrelle
