// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"

namespace ambrelle::quest {

/// A dark trough with room for `count` blocks; each has the colour that `colourOf` gives for it, or is out.
void blockBar(
    Canvas& canvas, const Box& box, int count, const std::function<std::optional<QColor>(int index)>& colourOf);
/// The same as a level: as many blocks of 6 points as fit, lit to `fraction` (0 to 1).
void blockBar(Canvas& canvas, const Box& box, double fraction, const QColor& colour);
/// Columns of blocks over their empty places: the newest in its own colour, those of a high load in the warning one.
void blockColumns(Canvas& canvas, const SkinStyle& style, const Box& box, const History& history, const QColor& newest);
/// Two histories of narrow bars about one line.
void mirroredBars(Canvas& canvas, const SkinStyle& style, const Box& box, const NetworkReading& reading);
/// One row per part of a whole, with a block in its colour.
void blockKey(Canvas& canvas, const SkinStyle& style, const Box& box, const QList<Share>& parts);
/// The colour of part `index` of a whole.
QColor partColour(const SkinStyle& style, qsizetype index);
/// Sixteen blocks in a circle; returns the box inside.
Box blockRing(Canvas& canvas, const Box& box, double fraction, const QColor& colour);
/// Ten hearts in two rows; on the charger the next one blinks.
void hearts(Canvas& canvas, const Box& box, double level, bool charging);

} // namespace ambrelle::quest
