// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

namespace ambrelle {

/// The contrast ratio of two opaque colours, 1 to 21 (WCAG 2.1, relative luminance).
double contrast(const QColor& one, const QColor& other);
/// `top` laid over the opaque colour `ground`.
QColor over(const QColor& top, const QColor& ground);
/// The colour with its opacity multiplied.
QColor faded(const QColor& colour, double opacity);
/// The way from `from` to `to` at `t`, 0 to 1.
QColor blended(const QColor& from, const QColor& to, double t);
/// `colour` mixed with `ink` in steps of 8 percent until it reaches `ratio` on `ground`.
QColor legible(const QColor& colour, const QColor& ink, const QColor& ground, double ratio = 4.5);
/// Black or white, whichever reads better on `fill`.
QColor inkOn(const QColor& fill);

} // namespace ambrelle
