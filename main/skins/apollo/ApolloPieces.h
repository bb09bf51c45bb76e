// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"
#include "skins/apollo/ApolloStyle.h"

namespace ambrelle::apollo {

/// The metal rim about the dark face; wide plates hang on two fasteners.
void console(Canvas& canvas, const FaceContext& face, double corner);
/// A quarter-turn screw in its hole.
void fastener(Canvas& canvas, QPointF centre, double radius);
/// Something let into the face: dark, with a sunken edge.
void window(Canvas& canvas, const Box& box);

/// A number in a window of its own, at the right end; up to `places` digits are there to be lit.
void digits(Canvas& canvas, const Box& window, const Units::Pair& value, int places, const FigureStyle& figure);
/// The same at the top of `content` with its unit engraved beside it, and the warning mark if it is `marked`. Cuts its
/// band and the gap below; returns what is left of the band beside it.
Box heroRegister(Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, bool marked,
    double cap, int places = 3);

inline constexpr double rail = 4; ///< width of what the pens of a recorder run on, at its right edge

/// The paper of a chart recorder behind its window, and the rail of its pens; returns where traces run.
Box chartPaper(Canvas& canvas, const Box& box);
/// A pen of the recorder, from the rail to the end of its trace. It trembles while there is anything to write.
void pen(Canvas& canvas, const Box& chart, QPointF tip, bool writing, double seed = 1);
/// Whether there is anything to write.
bool isWriting(const History& history);
/// Paper of a teletype about the box, with its sprocket holes; returns where it prints.
Box teletype(Canvas& canvas, const Box& box);
/// The sign that ends a message, cut from the line.
void endOfLine(Canvas& canvas, Box& line, const TextStyle& text);

/// A square lamp, lit in a colour or dark; returns what stands on it in which colour.
struct LampFace {
    QColor ground;
    QColor ink;
};
LampFace lamp(Canvas& canvas, const SkinStyle& style, const Box& box, const std::optional<QColor>& light);
/// A lamp with engraved letters.
void lamp(
    Canvas& canvas, const SkinStyle& style, const Box& box, const QString& letters, const std::optional<QColor>& light);

/// The two reels of a tape deck, side by side; they turn while music plays, and the tape winds from the left one to the
/// right one with `progress` (0 to 1).
void reels(Canvas& canvas, const Box& box, double progress, bool playing);

} // namespace ambrelle::apollo
