// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Typeface.h"

#include <QBrush>
#include <QColor>
#include <QGlyphRun>
#include <QList>
#include <QPainterPath>

#include <memory>
#include <optional>

namespace ambrelle {

enum class Align { left, centre, right };

/// How a line, or a few wrapped lines, of text is set.
struct TextStyle {
    Typeface face{};
    double size = 12; ///< pixels
    QColor colour{};
    Align align = Align::left;
    Qt::TextElideMode elide = Qt::ElideRight;
    int lines = 1;
    double lineHeight = 1.3; ///< in parts of the size
    bool axis = false; ///< a tick or serial number, which may be smaller than the skin's text
    std::optional<QColor> engraving{}; ///< a highlight one point below the letters

    TextStyle sized(double pixels) const
    {
        return with([&](TextStyle& s) { s.size = s.face.fitted(pixels); });
    }
    TextStyle coloured(const QColor& c) const
    {
        return with([&](TextStyle& s) { s.colour = c; });
    }
    TextStyle aligned(Align a) const
    {
        return with([&](TextStyle& s) { s.align = a; });
    }
    TextStyle wrapped(int count) const
    {
        return with([&](TextStyle& s) { s.lines = count; });
    }
    TextStyle elided(Qt::TextElideMode mode) const
    {
        return with([&](TextStyle& s) { s.elide = mode; });
    }
    TextStyle asAxis() const
    {
        return with([&](TextStyle& s) { s.axis = true; });
    }
    TextStyle engraved(const QColor& c) const
    {
        return with([&](TextStyle& s) { s.engraving = c; });
    }
    TextStyle faced(const Typeface& f) const
    {
        return with([&](TextStyle& s) { s.face = f; });
    }

private:
    template <typename Change> TextStyle with(Change change) const
    {
        TextStyle copy = *this;
        change(copy);
        return copy;
    }
};

/// How a figure is set: every digit in an equal cell, its unit at 0.55 of the size on the same baseline.
struct FigureStyle {
    Typeface face{};
    double cap = 40; ///< height of the digits in points
    QBrush fill{}; ///< a gradient is given in the coordinates of the figure's box
    Align align = Align::left;
    std::optional<Typeface> unitFace{}; ///< for faces that have digits only
    std::optional<QColor> unitColour{};
    double outline = 0; ///< width of a stroke in the fill's colour, points

    FigureStyle aligned(Align a) const
    {
        FigureStyle copy = *this;
        copy.align = a;
        return copy;
    }
    FigureStyle filled(const QBrush& brush) const
    {
        FigureStyle copy = *this;
        copy.fill = brush;
        return copy;
    }
};

/// A line of text, shaped once: glyphs for a painter scaled by `scale`, baseline at y 0.
struct ShapedText {
    QList<QGlyphRun> runs; ///< none in a pixel face
    QPainterPath pixels{}; ///< of a pixel face, squares of the same scale
    double scale = 1;
    double width = 0; ///< advance, points
    QRectF ink; ///< of the glyphs, points, about the baseline's start
};

/// Shapes one line of text; equal calls of a thread share one result, which is no other thread's.
std::shared_ptr<const ShapedText> shape(const Typeface& face, double size, const QString& text);

/// The text cut to `width` points with one ellipsis sign, whole where it fits.
QString elided(const QString& text, const TextStyle& style, double width);
/// The text broken into at most `style.lines` lines of `width` points; the last one is elided.
QStringList wrapped(const QString& text, const TextStyle& style, double width);

/// A figure's outline: baseline at y 0, starting at x 0.
struct FigurePath {
    QPainterPath digits;
    QPainterPath unit;
    double width = 0; ///< of all cells and the unit, points
    double cap = 0; ///< after fitting
};

/// Lays a figure out in equal cells; where it is wider than `room`, three steps of ten
/// percent smaller, and then as small as it has to be: a number is never cut.
FigurePath figurePath(const QString& value, const QString& unit, const FigureStyle& style, double room);

} // namespace ambrelle
