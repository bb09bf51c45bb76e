// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"
#include "model/Skin.h"

#include <QColor>

#include <optional>

namespace ambrelle {

/// How a minimal skin's plate is made. Everything that is drawn on the plate is drawn in the same manner.
enum class PanelTreatment {
    frost, ///< translucent ice, lines in the colours of an aurora
    hairline, ///< square and flat, everything a thin rule
    card, ///< a solid card with a soft shadow, tinted badges, round bars
    casing, ///< an instrument's case with registration marks, blocks and ticks
};

/// What tells one minimal skin from another: its colours, typefaces and measures.
struct MinimalLook {
    Skin skin = Skin::polar;
    QColor ink;
    QColor soft;
    QColor faint;
    QColor accent;
    QColor accent2;
    QColor panelFill; ///< may be translucent
    PanelTreatment panel = PanelTreatment::card;
    double corner = 0;
    Typeface number;
    Typeface label;
    Typeface body;
    bool uppercaseLabels = false;
    double tracking = 0; ///< between the letters of labels, points
    bool numbered = false; ///< list rows begin with their number
    double inset = 16;
    double plateBorder = 0; ///< width of the line round the plate, points

    QColor accent3; ///< third part of a whole, suns
    QColor up;
    QColor down;
    QColor warn;
    QColor border; ///< colour of the line round the plate
    QColor shadow{}; ///< one step of the shadow; without a colour there is none
    QColor cloud{}; ///< of pictograms
    QColor key{}; ///< frames of the player's keys
    Typeface smallNumber{}; ///< for figures below cap 30
    double titleSize = 12;
    double rowSize = 12.5;
    double rowGap = 6; ///< between rows of two lines
    double titleGap = 6;
    double clockCap = 70;
    double heroCap = 40;
    double temperatureCap = 50;
    double wash = 0; ///< opacity of the area below a graph, where it is densest
    double tint = 0; ///< opacity of the accent behind badges and marks
    double coverWash = 0; ///< opacity of a track's cover spread over the plate
    double photoMat = 6;
    bool seconds = false; ///< the clock shows them

    bool operator==(const MinimalLook&) const = default;

    /// The look as designed. Skins outside the family get the first look.
    static MinimalLook original(Skin skin);

    MinimalLook accented(const std::optional<QColor>& override) const;
    /// The record that the shared faces draw from.
    SkinStyle style() const;
};

} // namespace ambrelle
