// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QString>

#include <algorithm>
#include <cmath>

namespace ambrelle {

/// A font face as a skin names it, without a size. The fallbacks that cover what display faces lack are added to every
/// font made from it.
struct Typeface {
    QString family;
    int weight = 400;
    bool italic = false;
    double capRatio = 0.72; ///< height of a capital in parts of the pixel size
    double cell = 1.0; ///< width of a figure's cell in parts of the widest digit
    double tracking = 0; ///< extra space between letters, in points
    bool pixel = false; ///< drawn in squares a sixteenth of the size: set on whole device pixels, bold is struck twice

    static constexpr int squares = 16; ///< of a pixel face's em

    bool operator==(const Typeface&) const = default;

    /// The size nearest to `size` that the face can be set in: of a pixel face only whole multiples of its squares.
    double fitted(double size) const { return pixel ? std::max(1.0, std::round(size / squares)) * squares : size; }
    /// The pixel size at which a capital is `cap` points high.
    double sizeForCap(double cap) const { return fitted(cap / capRatio); }
    Typeface tracked(double points) const
    {
        Typeface copy = *this;
        copy.tracking = points;
        return copy;
    }
};

/// A font of exactly `master` pixels. Text of other sizes is painted through a scaled painter, so that half pixels are
/// possible and every scale breaks its lines alike. Fonts are made once per thread and kept.
const QFont& fontOf(const Typeface& face, int master);

/// As fontOf(), but no other font stands in for what the face lacks. For one with fallbacks the toolkit makes a list of
/// all fonts that might, for every face, which takes it milliseconds, and which it keeps for ever.
const QFont& loneFontOf(const Typeface& face, int master);

/// The one without fallbacks where the face has everything of the text, else that with them.
const QFont& fontFor(const QString& text, const Typeface& face, int master);

} // namespace ambrelle
