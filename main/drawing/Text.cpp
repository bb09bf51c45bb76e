// SPDX-License-Identifier: MIT

#include "drawing/Text.h"

#include "drawing/Kept.h"
#include "drawing/PixelMask.h"

#include <QCache>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <memory>

namespace ambrelle {

namespace {

constexpr int bold = 600; // the weight from which a pixel face is struck twice

struct ShapeKey {
    QString family;
    int weight;
    bool italic;
    double tracking;
    double size;
    QString text;

    bool operator==(const ShapeKey&) const = default;
};

size_t qHash(const ShapeKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.family, key.weight, key.italic, key.tracking, key.size, key.text);
}

Typeface regular(Typeface face)
{
    face.weight = 400; // a bold is struck twice instead of being blurred by the font engine
    return face;
}

QPainterPath struckTwice(QPainterPath squares)
{
    squares.addPath(squares.translated(1, 0));
    return squares;
}

/// The outline of glyphs moved so that the middles of their strokes fall on the middles of squares: the face's own grid
/// lies between two squares. Capitals then stand on the line y = 0.
QPainterPath onGrid(const QPainterPath& outline)
{
    constexpr double shift = -0.25;
    return pixelated(outline.translated(shift, shift));
}

/// The outline of a glyph, which fonts are slow to tell.
QPainterPath glyphOutline(const QRawFont& font, quint32 glyph)
{
    constexpr int most = 600;
    thread_local Kept<QCache<std::pair<QRawFont, quint32>, QPainterPath>> outlines(most);
    if (const QPainterPath* kept = outlines.object({font, glyph}))
        return *kept;
    QPainterPath outline = font.pathForGlyph(glyph);
    outlines.insert({font, glyph}, new QPainterPath(outline));
    return outline;
}

void addGlyphs(QPainterPath& outline, const QGlyphRun& run)
{
    const QRawFont font = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    for (qsizetype index = 0; index < glyphs.size(); ++index)
        outline.addPath(glyphOutline(font, glyphs[index]).translated(places[index]));
}

std::unique_ptr<QTextLayout> laidOut(const QString& text, const QFont& font)
{
    auto layout = std::make_unique<QTextLayout>(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    QTextLine line = layout->createLine();
    line.setLineWidth(1e6);
    line.setPosition({0, -line.ascent()});
    layout->endLayout();
    return layout;
}

/// Whether the line is all in the face, which has everything of it.
bool isWhollyIn(const QString& family, const QTextLayout& line)
{
    return std::ranges::all_of(line.glyphRuns(),
        [&](const QGlyphRun& run) { return run.rawFont().familyName() == family && !run.glyphIndexes().contains(0); });
}

std::unique_ptr<QTextLayout> laidOut(const QString& text, const Typeface& face, int master, double spacing)
{
    const auto in = [&](QFont font) {
        if (spacing != 0)
            font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
        return laidOut(text, font);
    };
    auto alone = in(loneFontOf(face, master));
    return isWhollyIn(face.family, *alone) ? std::move(alone) : in(fontOf(face, master));
}

/// A line of a pixel face, laid out at one point a square and printed from a mask.
std::shared_ptr<const ShapedText> shapeInSquares(const Typeface& face, double size, const QString& text)
{
    auto shaped = std::make_shared<ShapedText>();
    shaped->scale = size / Typeface::squares;
    const bool twice = face.weight >= bold;
    const auto layout = laidOut(text, regular(face), Typeface::squares, twice ? 1 : 0);
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    for (const QGlyphRun& run : layout->glyphRuns())
        addGlyphs(outline, run);
    shaped->pixels = twice ? struckTwice(onGrid(outline)) : onGrid(outline);
    shaped->width = text.isEmpty() ? 0 : layout->lineAt(0).naturalTextWidth() * shaped->scale;
    const QRectF ink = shaped->pixels.boundingRect();
    shaped->ink = {ink.topLeft() * shaped->scale, ink.size() * shaped->scale};
    return shaped;
}

std::shared_ptr<const ShapedText> shapeAfresh(const Typeface& face, double size, const QString& text)
{
    if (face.pixel)
        return shapeInSquares(face, size, text);
    auto shaped = std::make_shared<ShapedText>();
    // Twice the size: pixel sizes of fonts are whole numbers, those of the skins are halves.
    const int master = std::max(1, static_cast<int>(std::lround(size * 2)));
    shaped->scale = size / master;
    const auto layout = laidOut(text, face, master, face.tracking / shaped->scale);
    shaped->runs = layout->glyphRuns();
    // Tracking follows the last letter too; it is no part of the text's width.
    const double advance = text.isEmpty() ? 0 : layout->lineAt(0).naturalTextWidth() * shaped->scale - face.tracking;
    shaped->width = std::max(0.0, advance);
    QRectF ink;
    for (const QGlyphRun& run : std::as_const(shaped->runs))
        ink |= run.boundingRect();
    shaped->ink = {
        ink.x() * shaped->scale, ink.y() * shaped->scale, ink.width() * shaped->scale, ink.height() * shaped->scale};
    return shaped;
}

} // namespace

std::shared_ptr<const ShapedText> shape(const Typeface& face, double size, const QString& text)
{
    thread_local Kept<QCache<ShapeKey, std::shared_ptr<const ShapedText>>> cache(400);
    const ShapeKey key{face.family, face.weight, face.italic, face.tracking, size, text};
    if (const auto* kept = cache.object(key))
        return *kept;
    auto shaped = shapeAfresh(face, size, text);
    cache.insert(key, new std::shared_ptr<const ShapedText>(shaped));
    return shaped;
}

const QFont& fontFor(const QString& text, const Typeface& face, int master)
{
    const bool isLone = isWhollyIn(face.family, *laidOut(text, loneFontOf(face, master)));
    return isLone ? loneFontOf(face, master) : fontOf(face, master);
}

QPainterPath outlineOf(const ShapedText& shaped)
{
    QPainterPath outline = shaped.pixels;
    outline.setFillRule(Qt::WindingFill);
    for (const QGlyphRun& run : shaped.runs)
        addGlyphs(outline, run);
    return QTransform::fromScale(shaped.scale, shaped.scale).map(outline);
}

namespace {

constexpr double rounding = 0.01;

struct CutKey {
    ShapeKey text;
    double width;
    Qt::TextElideMode mode;

    bool operator==(const CutKey&) const = default;
};

size_t qHash(const CutKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.text, key.width, static_cast<int>(key.mode));
}

/// The text with as many letters as fit beside the ellipsis sign.
QString cutToWidth(const QString& text, const TextStyle& style, double width)
{
    const auto fits = [&](const QString& candidate) {
        return shapeAfresh(style.face, style.size, candidate)->width <= width + rounding;
    };
    const auto cut = [&](qsizetype kept) {
        const bool middle = style.elide == Qt::ElideMiddle;
        QString head = text.left(middle ? (kept + 1) / 2 : kept);
        QString tail = text.right(middle ? kept / 2 : 0);
        // Half a surrogate pair is no character.
        if (!head.isEmpty() && head.back().isHighSurrogate())
            head.chop(1);
        if (!tail.isEmpty() && tail.front().isLowSurrogate())
            tail.remove(0, 1);
        return head.trimmed() + u'…' + tail.trimmed();
    };
    qsizetype low = 0;
    qsizetype high = text.size() - 1;
    while (low < high) {
        const qsizetype middle = (low + high + 1) / 2;
        if (fits(cut(middle)))
            low = middle;
        else
            high = middle - 1;
    }
    return cut(low);
}

} // namespace

QString elided(const QString& text, const TextStyle& style, double width)
{
    if (shape(style.face, style.size, text)->width <= width + rounding)
        return text;
    thread_local Kept<QCache<CutKey, QString>> cache(200);
    const CutKey key{{style.face.family, style.face.weight, style.face.italic, style.face.tracking, style.size, text},
        width, style.elide};
    if (const QString* kept = cache.object(key))
        return *kept;
    QString shown = cutToWidth(text, style, width);
    cache.insert(key, new QString(shown));
    return shown;
}

QStringList wrapped(const QString& text, const TextStyle& style, double width)
{
    QStringList lines;
    QString rest = text.simplified();
    while (!rest.isEmpty() && lines.size() < style.lines - 1) {
        qsizetype end = rest.size();
        while (end > 0 && shape(style.face, style.size, rest.left(end))->width > width) {
            const qsizetype space = rest.lastIndexOf(u' ', end - 1);
            end = space > 0 ? space : 0;
        }
        if (end == 0)
            break; // one word longer than a line: let it be elided
        lines.append(rest.left(end).trimmed());
        rest = rest.mid(end).trimmed();
    }
    if (!rest.isEmpty())
        lines.append(elided(rest, style, width));
    return lines;
}

} // namespace ambrelle
