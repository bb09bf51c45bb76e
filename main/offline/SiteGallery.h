// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <functional>

namespace ambrelle {

/// The pages that show the exported themes to people.
namespace SiteGallery {

/// Puts `bytes` into the file of that name below the folder of the site and tells it; false when that failed, which has
/// been told as well.
using WriteFile = std::function<bool(const QString& name, const QByteArray& bytes)>;

/// Writes pages, styles and scripts with `write`. `themes` is what themes.json holds; the pictures that it names are in
/// `folder` already. Gives false as soon as a file could not be written.
bool writeGallery(const QString& folder, const QJsonObject& themes, const WriteFile& write);

} // namespace SiteGallery

} // namespace ambrelle
