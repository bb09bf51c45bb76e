// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Gauge.h"
#include "skins/cockpit/CockpitStyle.h"

namespace ambrelle::cockpit {

/// A cross-slotted screw, turned by `degrees`.
void screw(Canvas& canvas, QPointF centre, double radius, double degrees);
/// The grey bezel with its four screws around the black face.
void bezel(Canvas& canvas, const Box& bounds, double corner);
/// Something let into the panel: dark, with a sunken edge. Part of a still layer where it does not change.
void window(Canvas& canvas, const Box& box, double radius = 3);
/// The edge of a round screen or dial that is let into the panel.
void roundRim(Canvas& canvas, const Gauge& disc);
/// The frame of an annunciator, lit in a colour or dark; returns what its letters stand on.
QColor annunciator(Canvas& canvas, const Box& box, const std::optional<QColor>& light);
/// An annunciator with its letters.
void lamp(
    Canvas& canvas, const SkinStyle& style, const Box& box, const QString& letters, const std::optional<QColor>& light);
/// A tape in its slot, moved on to `fraction` (0 to 1), with a white index at its end.
void tape(Canvas& canvas, const Box& box, double fraction, const QColor& colour);
/// A knurled knob.
void knob(Canvas& canvas, const Box& box);

/// A coloured part of a scale.
struct Band {
    double from; ///< 0 to 1
    double to;
    QColor colour;
};

/// A round gauge over 270 degrees with a needle that trembles, and between both ends of its scale a window for the
/// figure.
struct RoundGauge {
    const SkinStyle& style;
    QList<Band> bands{};
    QColor needle{};
    double seed = 1; ///< needles of one face differ
    enum class Scale { percent, blank, small };
    Scale scaled = Scale::percent; ///< with numerals or without; a small one has no window either

    /// The largest one in the box; returns the window's place.
    Box draw(Canvas& canvas, const Box& box, double fraction) const;

private:
    void scale(Canvas& canvas, const Gauge& gauge) const;
};

/// An upright scale of a per cent with bands, and a triangle that points at the level.
struct UprightScale {
    const SkinStyle& style;
    QList<Band> bands{};
    QColor pointer{};

    void draw(Canvas& canvas, const Box& box, double fraction) const;

private:
    void marks(Canvas& canvas, const Box& box, const Box& line) const;
};

} // namespace ambrelle::cockpit
