// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QString>

namespace ambrelle {

class BatchOutput;
class SampleWorld;
class Wallpaper;

/// Pictures of the themes without a desktop, from fixed sample data.
namespace PreviewRenderer {

/// Writes one sheet per skin with every widget on its wallpaper into the folder `outputDirectory`, which is made when
/// missing, as "<skin>.png", and tells each file on standard output. Gives the exit status: 0, or 1 after a sentence on
/// standard error.
int run(
    const QString& outputDirectory, const QList<Skin>& skins, const SampleWorld& samples, const Wallpaper& wallpaper);
/// Puts the skin's own desktop there, a pixel for each point, as "preset-<skin>.png".
void addDesktop(BatchOutput& output, Skin skin, const SampleWorld& samples, const Wallpaper& wallpaper);

} // namespace PreviewRenderer

} // namespace ambrelle
