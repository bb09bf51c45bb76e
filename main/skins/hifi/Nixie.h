// SPDX-License-Identifier: MIT

#pragma once

#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A number in glass tubes, one digit each, that flickers now and then.
struct Nixies {
    const SkinStyle& style;
    double cap = 40; ///< height of the digits, points; less where the number is wide
    int seed = 1; ///< of the flicker of the first tube; from 1 on, so that every tube is lit at time 0
    QString name; ///< of the still layers, one per place on a face

    /// Height of a tube for digits of `cap` points.
    static double height(double cap);

    /// Draws from the left edge, about the middle of the box; returns the width. A blank stands for an unlit tube.
    double draw(Canvas& canvas, const Box& box, const QString& value, const QString& unit = {}) const;
};

} // namespace ambrelle::hifi
