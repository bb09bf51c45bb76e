// SPDX-License-Identifier: MIT

#pragma once

class QPainter;
class QRectF;

namespace ambrelle {

/// The shadow of a card of that corner, soft and a little below it; reaches 18 points beyond. The card itself covers
/// what is under it. Nothing in high contrast, where cards have an outline.
void drawShadow(QPainter& painter, const QRectF& card, double corner);

} // namespace ambrelle
