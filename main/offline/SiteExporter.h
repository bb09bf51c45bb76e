// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "offline/SiteGallery.h"

#include <QDateTime>
#include <QString>

namespace ambrelle {

class SampleWorld;
class Wallpaper;

/// The catalogue of themes as pictures and data for a site. Below the folder of the export:
///
///     themes/<theme>/preset.png, preset.webp         the whole desktop; half the pixels as WebP
///     themes/<theme>/wallpaper.png, wallpaper.webp   likewise
///     themes/<theme>/widgets/<kind>.png              every widget of its layout, with a margin for its shadow
///     themes/<theme>/sprites/<name>.png              every mark of its scene
///     assets/img/accent/<theme>-<accent>.png, .webp  its clock in every accent that is offered
///     themes.json                                    what the pictures are of
///     and what writeGallery() makes of it
///
/// Of what could not be rendered, `themes.json` says nothing.
///
/// `themes.json` has these keys, in objects always in alphabetical order and in lists in the order of the catalogue;
/// tests/data/themes.schema.json says the same to a validator. Names of files count from the folder of the export.
/// Places are points of the canvas, y down. Colours are "#RRGGBB".
///
///     exported    UTC, from SOURCE_DATE_EPOCH where that is set
///     version     of the program; build: its number
///     canvas      width, height; scale: pixels per point of PNG pictures; margin: points around a widget's frame that
///                 its picture shows too
///     heroThemes  ids of themes to feature
///     blurb       by kind: what such a widget is for
///     themes      id, title, tagline, group ("concept", "minimal", "modern"), light, accent,
///                 partner: the id of the light or dark counterpart, or null
///                 kinds: of its widgets
///                 colors: ground, ink and soft of its widgets, wallpaper: the mean, scene: a list, most frequent first
///                 preset, wallpaper: file, width, height (pixels), webp, webpWidth, webpHeight
///                 layout: kind, title, file, x, y, width, height; the last lies above the others
///                 sprites: name, file, x, y, width, height; the last lies above the others, below all widgets
///     accentDemo  theme, kind ("clock"), color and file (.webp) in the theme's own accent,
///                 variants: name, color and file of every choice, the theme's own first
namespace SiteExporter {

/// What themes.json says of the export itself.
struct Release {
    QString version;
    int build = 0;
    QDateTime exported;
};

/// Writes it all for these skins into the folder, which is made when missing, and tells each file on standard output.
/// The pages are made of `material`.
/// Gives the exit status: 0, or 1 after a sentence on standard error.
int run(const QString& folder, const QList<Skin>& skins, const SampleWorld& samples, const Wallpaper& wallpaper,
    const Release& release, const SiteGallery::Material& material);

} // namespace SiteExporter

} // namespace ambrelle
