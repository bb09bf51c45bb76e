// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/FaceRenderer.h"

namespace ambrelle::quest {

/// A dialogue box: a white frame with stepped corners and a hard shadow around a blue gradient.
void dialogueBox(Canvas& canvas, const Box& bounds);
/// The title on a tab for which the frame makes way.
void titleTab(Canvas& canvas, const SkinStyle& style, const Box& bounds, const QString& title);

/// A figure, struck twice whatever its size; one that has to shrink to its box throws a shorter shadow. Returns its
/// width.
double largeFigure(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const Units::Pair& value, FigureStyle figure);
/// A figure of 48 pixels with the name of what it counts at its right end, and a warning beyond a threshold. Cuts its
/// band and the gap below.
void stat(
    Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, const QString& name, bool beyond);

/// The rows of a quest log: the hand points at the first one, and `draw` gets the room beside it.
void questLog(Canvas& canvas, const Box& box, qsizetype count, double pitch,
    const std::function<void(Box row, qsizetype index)>& draw);
/// A place for an item of 32 points.
void itemSlot(Canvas& canvas, const Box& box, bool chosen, const SkinStyle& style);
/// A push button; the `middle` one is filled.
void pushButton(Canvas& canvas, const Box& box, const QString& symbol, bool middle, const SkinStyle& style);

} // namespace ambrelle::quest
