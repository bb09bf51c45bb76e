// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"
#include "drawing/Motion.h"
#include "skins/night/NightLook.h"

#include <QPainterPath>
#include <QPolygonF>

#include <array>

namespace ambrelle {

/// What night skins draw in their faces and again around them.

/// Pulse: a beat of a heart as wide as the box, on a line at `base`; its spike reaches up to `height`.
QPolygonF heartBeat(const Box& box, double base, double height);
constexpr double beatDip = 0.26; ///< how far a beat falls below its line, in parts of its height
const Motion heartbeat = Motion::bursts(2.4, 1, 0.5, 24);
constexpr double beatSwell = 0.12; ///< how much larger than at rest something gets as it beats
/// How large it is, in parts of its size at rest.
double beatAt(double time, const Motion& motion = heartbeat);

/// Prism: the colours that white falls into, one after the other.
constexpr QColor prismViolet(0xB5, 0x8C, 0xFF); ///< what lies in the spectrum between the second colour and the third,
constexpr QColor prismGreen(0x7B, 0xE3, 0xA1); ///< and beyond that
std::array<QColor, 6> spectrumOf(const NightLook& look);

/// Velvet: a lozenge, `radius` high above its centre and `broad` times as wide.
QPainterPath lozenge(QPointF centre, double radius, double broad = 0.8);

} // namespace ambrelle
