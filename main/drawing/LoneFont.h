// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Typeface.h"

namespace ambrelle {

/// As fontOf(), but no other font stands in for what the face lacks. For one with fallbacks the toolkit makes a list of
/// all fonts that might, for every face, which takes it milliseconds, and which it keeps for ever.
const QFont& loneFontOf(const Typeface& face, int master);

/// The one without fallbacks where the face has everything of the text, else that with them.
const QFont& fontFor(const QString& text, const Typeface& face, int master);

} // namespace ambrelle
