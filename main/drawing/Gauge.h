// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

#include <QPen>

#include <functional>
#include <optional>

namespace ambrelle {

/// One mark of a scale, from the gauge's radius inwards. Without a length there is none.
struct Tick {
    double length = 0; ///< points
    QPen pen{};
};

/// What points at a value. Lengths are points.
struct Needle {
    double length = 40; ///< from the centre to the tip
    double tail = 0; ///< beyond the centre; below 0 the needle begins so far before it
    double width = 1.6;
    bool pointed = false; ///< narrows to its tip, else a bar
    bool round = false; ///< ends of a bar
    QBrush fill{};
    double hub = 0; ///< radius of the disc over the centre
    QBrush hubFill{}; ///< none: the needle's
    std::optional<QColor> shadow{}; ///< a second needle below, a little to the right and down
    std::optional<Box> window{}; ///< only what lies in it is drawn, without a hub
};

/// How a needle trembles about its value. At time 0 it stands on it.
struct Tremble {
    double degrees = 0; ///< 0: it stands still; it strays by twice as much at most
    double seed = 1; ///< needles of one face differ
    double fps = 12;
};

/// A round instrument: a scale from 0 to 1 along a circle. Degrees run clockwise, from twelve o'clock; "distance" is in
/// points from the centre.
struct Gauge {
    QPointF centre;
    double radius = 50; ///< of the scale
    double start = -135; ///< where 0 is
    double sweep = 270; ///< to where 1 is; 360: a full circle

    /// In the largest circle of the box.
    static Gauge in(const Box& box, double start = -135, double sweep = 270);

    bool isFull() const { return sweep >= 360; }
    double degrees(double fraction) const { return start + sweep * fraction; }
    QPointF at(double fraction, double distance) const;
    /// The line along a part of the scale.
    QPainterPath arc(double from, double to, double distance) const;
    /// A part of the ring that reaches `width` points inwards from the radius.
    QPainterPath band(double from, double to, double width) const;

    /// Ticks at both ends and between; `steps` is the number of spaces, so one less than that of ticks unless the gauge
    /// is a full circle. `tickOf` gets 0 to `steps`.
    void ticks(Canvas& canvas, int steps, const std::function<Tick(int index)>& tickOf) const;
    /// The same with a long tick in every so many.
    void ticks(Canvas& canvas, int steps, int every, const Tick& longOne, const Tick& shortOne) const;
    /// The middle of a text at a place of the scale; as small as ticks may be.
    void numeral(Canvas& canvas, double fraction, const QString& text, double distance, const TextStyle& style) const;
    /// Texts evenly spread; on a full circle the first one stands at the start, on others one stands at either end.
    void numerals(Canvas& canvas, const QStringList& texts, double distance, const TextStyle& style) const;
    /// A coloured part of the scale, `width` points inwards from the radius.
    void zone(Canvas& canvas, double from, double to, double width, const QBrush& brush) const;

    /// Number `index` of `count` equal pieces of the ring, `gap` degrees apart. With `slant` its inner edge lies so
    /// many degrees further on.
    QPainterPath block(int index, int count, double gap, double width, double slant = 0) const;
    void blocks(Canvas& canvas, int count, double gap, double width, const std::function<QBrush(int index)>& brushOf,
        double slant = 0) const;

    /// The needle at `fraction`, 0 to 1. One that trembles is a moving part; on nothing (below 0.002) it rests.
    void needle(Canvas& canvas, double fraction, const Needle& needle, const Tremble& tremble = {}) const;
};

/// The hands of a clock in a circle about `centre`.
struct ClockHands {
    Needle hour;
    Needle minute;
    std::optional<Needle> second{};

    /// Bars in the usual proportions for a dial of that radius; without a colour for it there is no second hand.
    static ClockHands plain(double radius, const QBrush& ink, const std::optional<QColor>& secondColour = {});

    /// `hour` may count to 12 or 24. The second hand needs a second.
    void draw(Canvas& canvas, QPointF centre, int hour, int minute, std::optional<int> second = {}) const;
};

} // namespace ambrelle
