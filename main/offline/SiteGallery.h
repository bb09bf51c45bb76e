// SPDX-License-Identifier: MIT

#pragma once

#include "offline/BatchOutput.h"

#include <QJsonObject>
#include <QString>

#include <functional>

namespace ambrelle {

/// The pages that show the exported themes to people:
///
///     index.html, themes/<theme>.html, style.css, gallery.js, icon.svg
///     themes/<theme>/preset-480.webp, preset-960.webp   the desktops in fewer pixels
///     assets/img/kinds/<kind>.webp                      a widget of each kind
namespace SiteGallery {

/// What the pages are made of beside the catalogue.
struct Material {
    QString templates; ///< the folder of templates, styles and script
    QString download; ///< where the program can be had; shown when it is an address of the web
    QString licence; ///< paragraphs, an empty line between them
};

/// Puts a file of that name into the folder of the site.
using AddFile = std::function<void(const QString& name, BatchOutput::Pack pack)>;

/// Adds pages and smaller pictures. `themes` is what themes.json holds; the pictures that it names are in `folder`
/// already. Gives a sentence when the templates cannot be used, and otherwise an empty text.
QString writeGallery(const QString& folder, const QJsonObject& themes, const Material& material, const AddFile& add);

} // namespace SiteGallery

} // namespace ambrelle
