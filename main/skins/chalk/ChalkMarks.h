// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"

#include <QPainterPath>

namespace ambrelle::chalk {

/// What a teacher's hand draws over and over: lines to be stroked in chalk, which lets them waver. Points.

/// A line with an open head at its end.
QPainterPath arrowPath(QPointF from, QPointF to, double head = 4.5);
QPainterPath crossPath(QPointF centre, double half);
/// A tick that leaves its box at the upper right, as a quick hand makes it.
QPainterPath tickPath(const Box& box);
/// A box of four strokes that miss each other's ends.
QPainterPath boxPath(const Box& box);
/// A loop around something, long or round, that runs past its own start.
QPainterPath loopPath(const Box& box);
/// To and fro between the upper and the lower edge.
QPainterPath scribblePath(const Box& box, double pitch);

} // namespace ambrelle::chalk
