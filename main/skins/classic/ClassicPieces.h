// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/FaceRenderer.h"

namespace ambrelle::classic {

/// A white window with a hard shadow: frame, title bar of six lines, close box.
void window(Canvas& canvas, const Box& bounds);
/// The title on its white label in the middle of the title bar.
void windowTitle(Canvas& canvas, const Box& bounds, const QString& title);

/// A figure of `size` pixels at the left edge of the box; beyond a threshold white on black.
void hero(Canvas& canvas, const Box& box, const QString& value, const QString& unit, double size, bool beyond = false);

/// A black ground for what is written next in white.
void invert(Canvas& canvas, const Box& box);

/// Bars of checkerboard under solid caps, with ticks at nothing, half and all.
void histogram(Canvas& canvas, const Box& box, const QList<double>& history);
/// A frame filled with a checkerboard to `fraction` (0 to 1).
void progress(Canvas& canvas, const Box& box, double fraction);
/// A frame with one pattern per part of a whole.
void patternBar(Canvas& canvas, const Box& box, const QList<Share>& parts);
/// The pattern of part `index`.
QColor pattern(qsizetype index);
/// Ten blocks in a frame with a nub, solid for the charge.
void cell(Canvas& canvas, const Box& box, double level);
/// Twelve blocks of a ring, black for the value, outlined for the rest; returns the box inside.
Box wedges(Canvas& canvas, const Box& box, double fraction);
/// Three push buttons in equal columns.
void pushButtons(Canvas& canvas, const Box& box);

/// The rows of a list that fills a window to its frame, with a scroll bar: `draw` gets each row and the colour to write
/// with; the first row is chosen.
void listView(Canvas& canvas, const Box& bounds, qsizetype count, double pitch,
    const std::function<void(Box row, qsizetype index, const QColor& colour)>& draw);

} // namespace ambrelle::classic
