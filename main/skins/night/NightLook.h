// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"
#include "model/Skin.h"

#include <QColor>

#include <optional>

namespace ambrelle {

/// How lines, levels and rings of a night skin are drawn. Points.
struct NightLines {
    double graph = 1.8; ///< width of a history's line
    double wash = 0; ///< opacity of the area below it, where it is densest; 0: none
    double glow = 0; ///< opacity of each stroke of the light around lines; 0: none
    double bead = 0; ///< radius of the mark on the newest sample; 0: none
    bool tipped = false; ///< levels and rings end in it too
    double level = 4; ///< thickness of what a level has reached
    double levelTrack = 4; ///< and of its empty track
    double ring = 8; ///< of what a dial has reached
    double ringTrack = 8;
    double parts = 8; ///< height of the bar of a whole's parts

    bool operator==(const NightLines&) const = default;
};

/// What tells one skin of the night family from another: its colours, typefaces and measures.
struct NightLook {
    Skin skin = Skin::obsidian;
    QColor ink;
    QColor soft;
    QColor faint;
    QColor accent;
    QColor accent2;
    QColor accent3;
    double corner = 0;
    double inset = 16;
    Typeface number;
    Typeface label;
    Typeface body;
    bool uppercaseLabels = false;
    double tracking = 0; ///< between the letters of labels, points

    QColor plate; ///< may be translucent
    QColor track; ///< the empty part of levels and dials
    QColor up;
    QColor down;
    QColor warn;
    Typeface smallNumber{}; ///< for figures below cap 30
    std::optional<Typeface> unitFace{}; ///< of units, where the number face lacks small letters
    double shadow = 0.03; ///< opacity of each step of the plate's shadow; 0: none
    NightLines lines{};
    double titleSize = 12;
    double rowSize = 12.5;
    double captionSize = 10.5;
    double floor = 10; ///< no text smaller than this
    double trackSize = 14; ///< of the title of what is played
    double rowGap = 6; ///< between rows of two lines
    double titleGap = 6;
    double clockCap = 70;
    double heroCap = 40;
    double temperatureCap = 50;
    double rateCap = 26;
    double dialCap = 20;
    double coverCorner = 12;
    double photoMat = 6;
    double keys = 26; ///< height of the player's keys

    bool operator==(const NightLook&) const = default;

    /// The look of the skin as designed, with the user's accent in place of its own where there is one. Skins outside
    /// the family get the first look.
    static NightLook of(Skin skin, const std::optional<QColor>& accent = {});

    /// Text under and beside what a face tells first.
    TextStyle caption() const;
    /// The record that the shared faces draw from.
    SkinStyle style() const;
};

} // namespace ambrelle
