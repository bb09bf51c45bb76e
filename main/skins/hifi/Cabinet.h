// SPDX-License-Identifier: MIT

#pragma once

#include "skins/hifi/HiFiStyle.h"

/// Wood, metal, glass and lamps that all instruments are built into.
namespace ambrelle::hifi {

/// The walnut case with its champagne line and the smoked glass inside it; grain seeded by `seed`.
void cabinet(Canvas& canvas, const Box& face, double corner, unsigned seed);
/// A slotted screw, its slot turned by `degrees`.
void screw(Canvas& canvas, QPointF centre, double radius, double degrees);

/// A jewel lamp, dark or glowing.
void lamp(Canvas& canvas, QPointF centre, double radius, const QColor& colour, bool lit);
/// A dark window lit from below by `light`.
void window(Canvas& canvas, const Box& box, const QColor& light, double corner = 4);
/// A sheet of cream paper under the glass.
void sheet(Canvas& canvas, const Box& box, double corner = 3);

} // namespace ambrelle::hifi
