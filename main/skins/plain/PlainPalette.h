#pragma once

#include "model/Skin.h"

#include <QRgb>

namespace ambrelle {

struct PlainFace {
    const char* family;
    int weight;
    bool italic;
    double capRatio;
};

/// Typefaces, colours and measures of a skin that has no painter of its own yet.
struct PlainPalette {
    Skin skin;
    PlainFace title;
    PlainFace body;
    PlainFace number;
    double cell; ///< of figures, in widest digits
    QRgb plate;
    double plateAlpha;
    QRgb ink;
    QRgb soft;
    QRgb faint;
    QRgb accent;
    QRgb accent2;
    QRgb accent3;
    QRgb up;
    QRgb down;
    QRgb warn;
    double corner; ///< points, as the following
    double inset;
    double titleGap;
    bool uppercase;
    double titleSize; ///< pixels
    double floor;
};

/// Nothing for a skin with a painter of its own.
const PlainPalette* plainPalette(Skin skin);

} // namespace ambrelle
