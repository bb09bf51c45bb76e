#pragma once

#include "model/Skin.h"

#include <QString>

#include <optional>

namespace ambrelle {

class SystemMonitor;

/// Pictures of the themes without a desktop, from fixed sample data.
namespace PreviewRenderer {

/// Writes one sheet per skin (or only `only`) with every widget into `outputDirectory`, which is made when missing, and
/// tells each file on standard output. `monitor` is filled with its sample values. Gives the exit status: 0, or 1 when
/// a file could not be written.
int run(const QString& outputDirectory, std::optional<Skin> only, SystemMonitor& monitor);

} // namespace PreviewRenderer

} // namespace ambrelle
