// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"

namespace ambrelle::atlas {

/// The folded sheet of a map: creases, a hill in the lower right corner (one for each seed), and the double line of the
/// border with its ticks. Reaches 6 points beyond `box`.
void mapSheet(Canvas& canvas, const Box& box, const SkinStyle& style, std::uint64_t seed);

/// A frame of two lines, the heavy one outside; returns the box inside.
Box doubleFrame(Canvas& canvas, const Box& box, const QColor& ink);

/// The fields of a scale bar, dark and light by turns.
void scaleFields(Canvas& canvas, const SkinStyle& style, const Box& box, int count);
/// How far a value reaches, 0 to 1, in a frame with a mark at its end.
void measure(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction, const QColor& colour);
/// A scale bar with its fields above and the value below them.
void scaleBar(Canvas& canvas, const SkinStyle& style, Box box, int fields, double fraction, const QColor& colour);
/// The numbers of a scale, the first and the last one at its ends.
void scaleNumbers(Canvas& canvas, const SkinStyle& style, const Box& box, const QStringList& numbers);
inline constexpr double numbersLine = 10; ///< their height

/// What the areas and lines of a map stand for.
enum class Sign { builtUp, water, wood, road, railway };
/// An area covered with the sign.
void signArea(Canvas& canvas, const SkinStyle& style, const Box& box, Sign sign);
/// The sign as it stands in the legend, 12 x 8 points about the middle of the box.
void legendSign(Canvas& canvas, const SkinStyle& style, const Box& box, Sign sign);
inline constexpr double legendWidth = 12;
inline constexpr double legendGap = 7;

/// A ring of degrees with its four letters; what is reached is an arc around it, and a needle points there. Returns the
/// box inside.
Box compass(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction, const QColor& colour);
/// The star that points north.
void compassRose(Canvas& canvas, const SkinStyle& style, const Box& box);
/// The triangle of a surveyed point.
void surveyMark(Canvas& canvas, const SkinStyle& style, QPointF centre, const QColor& colour);

/// A sky as a sign of the map: tinted, in ink.
void skySign(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky);

/// Where the city lies: "64°09′N 21°56′W"; empty for cities that are not known.
QString gridReference(const QString& city);

} // namespace ambrelle::atlas
