// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QString>

#include <optional>

namespace ambrelle {

class ReadingFeed;
class Wallpaper;

/// Pictures of the themes without a desktop, from fixed sample data.
namespace PreviewRenderer {

/// Writes one sheet per skin (or only `only`) with every widget on its wallpaper into `outputDirectory`, which is made
/// when missing, and tells each file on standard output. `feed` reads services that hold the sample data. Gives the
/// exit status: 0, or 1 when a file could not be written.
int run(const QString& outputDirectory, std::optional<Skin> only, const ReadingFeed& feed, const Wallpaper& wallpaper);

} // namespace PreviewRenderer

} // namespace ambrelle
