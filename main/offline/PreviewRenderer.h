#pragma once

#include "model/Skin.h"

#include <QString>

#include <optional>

namespace ambrelle {

class SystemMonitor;
class Wallpaper;

/// Pictures of the themes without a desktop, from fixed sample data.
namespace PreviewRenderer {

/// Writes one sheet per skin (or only `only`) with every widget on its wallpaper into `outputDirectory`, which is made
/// when missing, and tells each file on standard output. `monitor` is filled with its sample values. Gives the exit
/// status: 0, or 1 when a file could not be written.
int run(const QString& outputDirectory, std::optional<Skin> only, SystemMonitor& monitor, const Wallpaper& wallpaper);

} // namespace PreviewRenderer

} // namespace ambrelle
