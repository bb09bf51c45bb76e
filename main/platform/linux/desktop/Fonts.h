// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle::Fonts {

/// Reads which fonts the system has, on any thread. Whoever needs them first does it otherwise.
void prepare();
/// Makes the fonts that ship with the program known to it, so that skins can name them. Goes before the first text;
/// false when there is no folder of fonts beside the program (skins then fall back to the system's fonts).
bool registerBundled();
/// The same for a folder of font files.
bool registerFolder(const QString& folder);

} // namespace ambrelle::Fonts
