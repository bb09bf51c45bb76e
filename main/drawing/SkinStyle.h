// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Figure.h"
#include "drawing/Finish.h"
#include "drawing/StrokeManner.h"
#include "drawing/Text.h"
#include "drawing/Typeface.h"

#include <QColor>

namespace ambrelle {

/// Measures of the dials that shared faces draw; degrees run clockwise from twelve o'clock.
struct DialMeasures {
    double width = 7; ///< of a ring and of segments, and the length of long ticks, points
    double start = 0; ///< degrees
    double sweep = 360; ///< degrees
    int count = 0; ///< of segments, or of spaces between ticks; 0: 24 segments, 60 ticks
    int every = 5; ///< every so-manyth tick is a long one
    double gap = 3; ///< between segments, degrees
    double slant = 0; ///< by which the inner edge of a segment lies further on, degrees
    bool roundEnds = true; ///< of a ring

    bool operator==(const DialMeasures&) const = default;
};

/// How shared pieces draw in a skin: its three typefaces, its colours and its measures. Colours have one use each.
struct SkinStyle {
    Typeface title; ///< headers
    Typeface body; ///< ordinary lines
    Typeface number; ///< large figures
    QColor ink; ///< figures, names, strokes
    QColor soft; ///< secondary text
    QColor faint; ///< rules, empty tracks; never text
    QColor accent; ///< the skin's own colour, or the user's override
    QColor up; ///< good or rising
    QColor down; ///< bad or falling
    bool uppercase = false; ///< our own labels in capitals
    double inset = 16; ///< padding of the face, points
    double corner = 0; ///< radius of the plate, points
    double titleGap = 6; ///< between header and content, points

    QColor warn; ///< marks beyond a threshold
    QColor ground; ///< the opaque colour that text contrast is measured on: the plate over its worst background
    double titleSize = 12; ///< pixel sizes
    double rowSize = 12.5;
    double captionSize = 10.5;
    double floor = 10; ///< no text smaller than this, axis ticks apart
    double rowPitch = 18;
    double lineHeight = 1.3; ///< of wrapped lines, in parts of their size
    double dialCap = 18; ///< height of the figure inside the shared dials
    Finish finish = Finish::smooth;
    StrokeManner manner = StrokeManner::plain; ///< of all lines that faces draw
    std::optional<Typeface> unitFace{}; ///< of units, where the number face has digits only
    double rowGap = 6; ///< between rows of two lines, points
    std::optional<Typeface> smallNumber{}; ///< for figures below cap 30, where the large one's strokes were too thin
    QColor accent2{}; ///< second and third colour of the skin: parts of a whole, pictograms, rows by turns
    QColor accent3{};
    bool lowercase = false; ///< our own labels in small letters
    double clockCap = 66; ///< height of large figures: of the clock, of a face's chief value, of temperatures, of rates
    double heroCap = 40;
    double temperatureCap = 46;
    double rateCap = 24;
    DialMeasures dial{};
    double ruling = 0; ///< pitch of the rules that quotes are written on, points; 0: paper without rules

    bool operator==(const SkinStyle&) const = default;

    /// One of our own labels in the skin's case; what users wrote keeps its letters.
    QString caps(const QString& label) const
    {
        return uppercase ? label.toUpper() : lowercase ? label.toLower() : label;
    }
    /// What we say besides labels: in a skin of small letters the words become small, units and initials do not.
    QString words(const QString& sentence) const;
    /// The accent as a colour for text.
    QColor accentText() const;

    TextStyle header() const { return text(title, titleSize, ink); }
    TextStyle caption() const { return text(body, captionSize, soft); }
    TextStyle row() const { return text(body, rowSize, ink); }
    TextStyle rowValue() const { return row().coloured(soft).aligned(Align::right); }
    FigureStyle figure(double cap) const
    {
        constexpr double large = 30;
        const Typeface& face = cap < large && smallNumber ? *smallNumber : number;
        return {.face = face, .cap = cap, .fill = ink, .unitFace = unitFace};
    }

private:
    TextStyle text(const Typeface& face, double size, const QColor& colour) const
    {
        return {.face = face, .size = size, .colour = colour, .lineHeight = lineHeight};
    }
};

} // namespace ambrelle
