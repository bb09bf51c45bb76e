// SPDX-License-Identifier: MIT

#include "drawing/Figure.h"

#include "drawing/Kept.h"
#include "drawing/PixelMask.h"

#include <QFontMetricsF>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr int figureMaster = 128;
constexpr QChar figureSpace(0x2007); // as wide as a digit
constexpr int squareMaster = figureMaster / Typeface::squares; // side of a pixel face's squares

/// One character of a figure at the master size, and how wide its cell is.
struct FigureGlyph {
    QPainterPath path;
    double advance = 0;
};

struct GlyphKey {
    QString family;
    int weight;
    bool italic;
    bool pixel;
    QString text;

    bool operator==(const GlyphKey&) const = default;
};

size_t qHash(const GlyphKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.family, key.weight, key.italic, key.pixel, key.text);
}

GlyphKey keyOf(const Typeface& face, const QString& text)
{
    return {face.family, face.weight, face.italic, face.pixel, text};
}

/// The squares of a pixel face's character inside a shape, at the master size.
QPainterPath inSquares(const QPainterPath& squares, const QPainterPath& room)
{
    const QTransform small = QTransform::fromScale(1.0 / squareMaster, 1.0 / squareMaster);
    return small.inverted().map(pixelated(small.map(squares.intersected(room))));
}

FigureGlyph makeGlyph(const Typeface& face, QChar character)
{
    FigureGlyph glyph;
    if (face.pixel) {
        const auto shaped = shape(face, figureMaster, character);
        glyph.path = QTransform::fromScale(squareMaster, squareMaster).map(shaped->pixels);
        glyph.advance = shaped->width;
        const double end = glyph.advance - squareMaster; // of the ink, or neighbours would touch
        if (const QRectF ink = glyph.path.boundingRect(); character.isDigit() && ink.right() > end) {
            QPainterPath room;
            room.addRect(QRectF(ink.topLeft(), QPointF(end, ink.bottom())));
            glyph.path = inSquares(glyph.path, room);
        }
        if (character == u'.' || character == u':') {
            // Points and colons stand in cells of their own width, not in the half em of letters.
            const QRectF ink = glyph.path.boundingRect();
            glyph.path.translate(squareMaster - ink.x(), 0);
            glyph.advance = ink.width() + 2 * squareMaster;
        }
        return glyph;
    }
    const QFont& font = fontFor(character, face, figureMaster);
    glyph.path.addText(0, 0, font, character);
    glyph.path.setFillRule(Qt::WindingFill);
    glyph.advance = QFontMetricsF(font).horizontalAdvance(character);
    if (glyph.advance <= 0) {
        // A point that is meant to stand between two digits, where it would touch both.
        constexpr double air = figureMaster * 0.03;
        const QRectF ink = glyph.path.boundingRect();
        glyph.path.translate(air - ink.x(), 0);
        glyph.advance = ink.width() + 2 * air;
    }
    return glyph;
}

const FigureGlyph& glyphOf(const Typeface& face, QChar character)
{
    thread_local Kept<QHash<GlyphKey, FigureGlyph>> glyphs;
    const GlyphKey key = keyOf(face, character);
    auto found = glyphs.find(key);
    if (found == glyphs.end())
        found = glyphs.insert(key, makeGlyph(face, character));
    return *found;
}

/// By how much two characters stand nearer to each other than their widths say, at the master size.
double kerning(const Typeface& face, QChar before, QChar after)
{
    if (face.pixel || before.isNull())
        return 0;
    thread_local Kept<QHash<GlyphKey, double>> pairs;
    const QString pair = QString(before) + after;
    const GlyphKey key = keyOf(face, pair);
    auto found = pairs.find(key);
    if (found == pairs.end()) {
        const QFontMetricsF metrics(fontFor(pair, face, figureMaster));
        const double apart = metrics.horizontalAdvance(before) + metrics.horizontalAdvance(after);
        found = pairs.insert(key, metrics.horizontalAdvance(pair) - apart);
    }
    return *found;
}

double cellOf(const Typeface& face)
{
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, glyphOf(face, QChar(digit)).advance);
    widest *= face.cell;
    return face.pixel ? std::round(widest / squareMaster) * squareMaster : widest;
}

struct Setting {
    const Typeface& face;
    double size;
    bool tabular;
};

/// Appends the characters of `text` to `path` if there is one, digits centred in equal cells, and returns the pen's new
/// place.
double setCells(
    QPainterPath* path, const Setting& setting, double pen, const QString& text, QList<double>* places = nullptr)
{
    const Typeface& face = setting.face;
    const double scale = setting.size / figureMaster;
    const double cell = cellOf(face) * scale;
    QChar before;
    for (const QChar character : text) {
        const FigureGlyph& glyph = glyphOf(face, character);
        const double advance = glyph.advance * scale;
        const bool inCell = setting.tabular && (character.isDigit() || character == figureSpace);
        if (!setting.tabular)
            pen += kerning(face, before, character) * scale;
        before = character;
        if (path) {
            const double spare = inCell ? (cell - advance) / 2 : 0;
            const double x =
                pen + (face.pixel ? std::floor(spare / scale / squareMaster) * squareMaster * scale : spare);
            QTransform place = QTransform::fromTranslate(x, 0);
            place.scale(scale, scale);
            path->addPath(place.map(glyph.path));
            if (places)
                places->append(x);
        }
        pen += inCell ? cell : advance;
    }
    return pen;
}

enum class Wanted { widths, outlines };

FigurePath layOut(const QString& value, const QString& unit, const FigureStyle& style, double cap, Wanted wanted)
{
    FigurePath figure;
    const bool outlines = wanted == Wanted::outlines;
    const double size = style.face.sizeForCap(cap);
    figure.cap = style.face.pixel ? size * style.face.capRatio : cap;
    figure.digits.setFillRule(Qt::WindingFill);
    figure.unit.setFillRule(Qt::WindingFill);
    figure.digitsWidth =
        setCells(outlines ? &figure.digits : nullptr, {style.face, size, style.tabular}, 0, value, &figure.places);
    figure.width = figure.digitsWidth;
    if (!unit.isEmpty()) {
        const Typeface& face = style.unitFace ? *style.unitFace : style.face;
        const double unitSize = face.fitted(face.sizeForCap(cap) * 0.55);
        const double gap = face.pixel ? unitSize / Typeface::squares : 0.06 * size;
        figure.width = setCells(outlines ? &figure.unit : nullptr, {face, unitSize, true}, figure.width + gap, unit);
        if (outlines && unit == u"°") // a ring hangs from the top of the digits, other units stand on their baseline
            figure.unit.translate(0, -figure.cap - figure.unit.boundingRect().top());
    }
    return figure;
}

/// The height of capitals at which the figure fits.
double fittingCap(const QString& value, const QString& unit, const FigureStyle& style, double room)
{
    const auto laidOut = [&](double cap) { return layOut(value, unit, style, cap, Wanted::widths); };
    double cap = style.cap;
    FigurePath figure = laidOut(cap);
    if (style.face.pixel) {
        const double step = Typeface::squares * style.face.capRatio;
        for (double smaller = figure.cap - step; figure.width > room && smaller > step / 2; smaller -= step) {
            cap = smaller;
            figure = laidOut(cap);
        }
        return cap;
    }
    for (int step = 0; step < 3 && figure.width > room; ++step) {
        cap *= 0.9;
        figure = laidOut(cap);
    }
    return figure.width > room && figure.width > 0 ? cap * room / figure.width : cap;
}

} // namespace

FigurePath figurePath(const QString& value, const QString& unit, const FigureStyle& style, double room)
{
    return layOut(value, unit, style, fittingCap(value, unit, style, room), Wanted::outlines);
}

double figureWidth(const QString& value, const QString& unit, const FigureStyle& style, double room)
{
    return layOut(value, unit, style, fittingCap(value, unit, style, room), Wanted::widths).width;
}

} // namespace ambrelle
