// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Typeface.h"

#include <QColor>
#include <QGlyphRun>
#include <QList>
#include <QPainterPath>

#include <memory>
#include <optional>

namespace ambrelle {

enum class Align { left, centre, right };

/// A copy of letters or digits under them.
struct InkShadow {
    QColor colour{};
    QPointF offset{1, 1}; ///< points

    bool operator==(const InkShadow&) const = default;
};

/// Light around letters or digits: strokes under them, each `spread` points wider than the one above it. Kept as a
/// still layer, so that it is drawn once as long as what glows stays the same.
struct InkGlow {
    QColor colour{};
    int strokes = 6;
    double alpha = 0.05; ///< of each stroke
    double spread = 2;

    bool operator==(const InkGlow&) const = default;
};

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
    std::optional<InkShadow> shadow{};
    std::optional<InkGlow> glow{};
    bool struck = false; ///< crossed out

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
    TextStyle shadowed(const QColor& c, QPointF offset = {1, 1}) const
    {
        return with([&](TextStyle& s) { s.shadow = InkShadow{c, offset}; });
    }
    TextStyle glowing(const InkGlow& light) const
    {
        return with([&](TextStyle& s) { s.glow = light; });
    }
    TextStyle struckThrough() const
    {
        return with([&](TextStyle& s) { s.struck = true; });
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
/// The outlines of its letters, in points about the baseline's start.
QPainterPath outlineOf(const ShapedText& shaped);

/// The text cut to `width` points with one ellipsis sign, whole where it fits.
QString elided(const QString& text, const TextStyle& style, double width);
/// The text broken into at most `style.lines` lines of `width` points; the last one is elided.
QStringList wrapped(const QString& text, const TextStyle& style, double width);

} // namespace ambrelle
