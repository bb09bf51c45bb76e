// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Text.h"

#include <QBrush>

namespace ambrelle {

/// How a figure is set: every digit in an equal cell, its unit at 0.55 of the size on the same baseline.
///
/// Gradients are given in the frame of the digits: (0, 0) is the upper left corner of their capitals, (1, 1) the end of
/// their baseline. `QLinearGradient(0, 0, 0, 1)` runs down the digits, whatever their size and place.
struct FigureStyle {
    Typeface face{};
    double cap = 40; ///< height of the digits in points
    QBrush fill{};
    Align align = Align::left;
    std::optional<Typeface> unitFace{}; ///< for faces that have digits only
    std::optional<QColor> unitColour{}; ///< none: the fill's, of a gradient the most legible of its colours
    double outline = 0; ///< width of a stroke over the edge in the fill; with its own brush, how far it lies outside
    std::optional<QBrush> outlineBrush{};
    std::optional<InkGlow> glow{};
    std::optional<InkShadow> shadow{};
    std::optional<QColor> ghost{}; ///< an unlit 8 behind every digit: an ornament, not recorded
    bool tabular = true; ///< false: digits of their own widths, kerned, for what changes rarely

    FigureStyle aligned(Align a) const
    {
        return with([&](FigureStyle& s) { s.align = a; });
    }
    FigureStyle filled(const QBrush& brush) const
    {
        return with([&](FigureStyle& s) { s.fill = brush; });
    }
    FigureStyle outlined(const QBrush& brush, double width) const
    {
        return with([&](FigureStyle& s) {
            s.outlineBrush = brush;
            s.outline = width;
        });
    }
    FigureStyle glowing(const InkGlow& light) const
    {
        return with([&](FigureStyle& s) { s.glow = light; });
    }
    FigureStyle shadowed(const QColor& colour, QPointF offset = {1, 1}) const
    {
        return with([&](FigureStyle& s) { s.shadow = InkShadow{colour, offset}; });
    }
    FigureStyle ghosted(const QColor& colour) const
    {
        return with([&](FigureStyle& s) { s.ghost = colour; });
    }
    FigureStyle kerned() const
    {
        return with([&](FigureStyle& s) { s.tabular = false; });
    }

private:
    template <typename Change> FigureStyle with(Change change) const
    {
        FigureStyle copy = *this;
        change(copy);
        return copy;
    }
};

/// A figure's outline: baseline at y 0, starting at x 0.
struct FigurePath {
    QPainterPath digits;
    QPainterPath unit;
    double digitsWidth = 0; ///< of the cells without the unit, points
    double width = 0; ///< of all cells and the unit, points
    double cap = 0; ///< after fitting
    QList<double> places{}; ///< where each character of the value begins, points
};

/// Lays a figure out; where it is wider than `room`, three steps of ten percent smaller, and then as small as it has to
/// be: a number is never cut.
FigurePath figurePath(const QString& value, const QString& unit, const FigureStyle& style, double room);
/// The width alone, for a tenth of the cost.
double figureWidth(const QString& value, const QString& unit, const FigureStyle& style, double room);

} // namespace ambrelle
