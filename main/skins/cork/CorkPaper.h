// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle::cork {

/// What is pinned to the board, drawn with its shadow.

/// A sticky note: darker where the glue is, its lower right corner curling up.
void stickyNote(Canvas& canvas, const Box& box, const QColor& colour);
/// A ruled index card. Its rules lie at `firstRule` below the box and at every further pitch.
void ruledCard(Canvas& canvas, const Box& box);
inline constexpr double firstRule = 30;
inline constexpr double marginLine = 26;
inline constexpr double belowCapitals = 6.5; ///< from the middle of a line's capitals to its rule
/// The white paper of an instant photo.
void photoPaper(Canvas& canvas, const Box& box, const Box& picture);
/// A strip torn off at its lower edge, each `seed` in its own way.
void tornStrip(Canvas& canvas, const Box& box, unsigned seed);

void pin(Canvas& canvas, QPointF centre);
/// A clip over the upper edge of a card; `top` is the middle of its upper bow.
void paperClip(Canvas& canvas, QPointF top);

/// What they cover, without their shadows.
QPainterPath noteOutline(const Box& box);
QPainterPath cardOutline(const Box& box);
QPainterPath pinOutline(QPointF centre);
QPainterPath clipOutline(QPointF top);

} // namespace ambrelle::cork
