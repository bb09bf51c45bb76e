// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QRgb>

namespace ambrelle {

struct PlainFace {
    const char* family;
    int weight;
    bool italic = false;
    double capRatio;
};

struct PlainMeasures {
    double corner; ///< points, as the following
    double inset;
    double titleGap;
    double titleSize; ///< pixels
    double floor; ///< pixels of the smallest text
    double rowGap = 6; ///< points between rows of two lines
};

/// Typefaces, colours and measures of a skin that has no painter of its own yet.
struct PlainPalette {
    Skin skin;
    PlainFace title;
    PlainFace body;
    PlainFace number;
    double cell = 1; ///< of figures, in widest digits
    QRgb plate;
    double plateAlpha = 1;
    QRgb ink;
    QRgb soft;
    QRgb faint;
    QRgb accent;
    QRgb accent2;
    QRgb accent3;
    QRgb up;
    QRgb down;
    QRgb warn;
    bool uppercase = false; ///< labels
    PlainMeasures measures;
};

/// Only for a skin without a painter of its own: ends the program for any other.
const PlainPalette& plainPalette(Skin skin);

} // namespace ambrelle
