#include "drawing/Text.h"

#include <QCache>
#include <QFontMetricsF>
#include <QHash>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

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

std::shared_ptr<const ShapedText> shapeAfresh(const Typeface& face, double size, const QString& text)
{
    auto shaped = std::make_shared<ShapedText>();
    // Twice the size: pixel sizes of fonts are whole numbers, those of the skins are halves.
    const int master = std::max(1, static_cast<int>(std::lround(size * 2)));
    shaped->scale = size / master;
    Typeface plain = face;
    if (face.pixel)
        plain.weight = 400; // a bold is struck twice instead of being blurred by the font engine
    QFont font = fontOf(plain, master);
    if (face.tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, face.tracking / shaped->scale);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e6);
    line.setPosition({0, -line.ascent()});
    layout.endLayout();
    shaped->runs = layout.glyphRuns();
    // Tracking follows the last letter too; it is no part of the text's width.
    const double advance = text.isEmpty() ? 0 : line.naturalTextWidth() * shaped->scale - face.tracking;
    shaped->width = std::max(0.0, advance);
    QRectF ink;
    for (const QGlyphRun& run : std::as_const(shaped->runs))
        ink |= run.boundingRect();
    shaped->ink = {
        ink.x() * shaped->scale, ink.y() * shaped->scale, ink.width() * shaped->scale, ink.height() * shaped->scale};
    return shaped;
}

constexpr int figureMaster = 128;

/// One character of a figure at the master size, and how wide its cell is.
struct FigureGlyph {
    QPainterPath path;
    double advance = 0;
};

FigureGlyph makeGlyph(const Typeface& face, QChar character)
{
    const QFont& font = fontOf(face, figureMaster);
    FigureGlyph glyph;
    glyph.path.addText(0, 0, font, character);
    if (face.pixel)
        glyph.path.addPath(glyph.path.translated(figureMaster / 16.0, 0));
    glyph.path.setFillRule(Qt::WindingFill);
    glyph.advance = QFontMetricsF(font).horizontalAdvance(character);
    return glyph;
}

const FigureGlyph& glyphOf(const Typeface& face, QChar character)
{
    static QHash<ShapeKey, FigureGlyph> glyphs;
    const ShapeKey key{face.family, face.weight, face.italic, face.pixel ? 1.0 : 0.0, 0, QString(character)};
    auto found = glyphs.find(key);
    if (found == glyphs.end())
        found = glyphs.insert(key, makeGlyph(face, character));
    return *found;
}

double cellOf(const Typeface& face)
{
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, glyphOf(face, QChar(digit)).advance);
    return widest * face.cell;
}

/// Appends the characters of `text` to `path`, digits centred in equal cells, and returns the pen's new place.
double appendCells(QPainterPath& path, const Typeface& face, double size, double pen, const QString& text)
{
    const double scale = size / figureMaster;
    const double cell = cellOf(face) * scale;
    for (const QChar character : text) {
        const FigureGlyph& glyph = glyphOf(face, character);
        const double advance = glyph.advance * scale;
        const bool digit = character.isDigit();
        const double x = digit ? pen + (cell - advance) / 2 : pen;
        QTransform place = QTransform::fromTranslate(x, 0);
        place.scale(scale, scale);
        path.addPath(place.map(glyph.path));
        pen += digit ? cell : advance;
    }
    return pen;
}

FigurePath layOut(const QString& value, const QString& unit, const FigureStyle& style, double cap)
{
    FigurePath figure;
    figure.cap = cap;
    const double size = style.face.sizeForCap(cap);
    figure.digits.setFillRule(Qt::WindingFill);
    figure.unit.setFillRule(Qt::WindingFill);
    figure.width = appendCells(figure.digits, style.face, size, 0, value);
    if (!unit.isEmpty()) {
        const Typeface& face = style.unitFace ? *style.unitFace : style.face;
        const double unitSize = face.sizeForCap(cap) * 0.55;
        figure.width = appendCells(figure.unit, face, unitSize, figure.width + 0.06 * size, unit);
        if (unit == u"°") // a ring hangs from the top of the digits, other units stand on their baseline
            figure.unit.translate(0, -cap - figure.unit.boundingRect().top());
    }
    return figure;
}

} // namespace

std::shared_ptr<const ShapedText> shape(const Typeface& face, double size, const QString& text)
{
    static QCache<ShapeKey, std::shared_ptr<const ShapedText>> cache(400);
    const ShapeKey key{face.family, face.weight, face.italic, face.tracking, size, text};
    if (const auto* kept = cache.object(key))
        return *kept;
    auto shaped = shapeAfresh(face, size, text);
    cache.insert(key, new std::shared_ptr<const ShapedText>(shaped));
    return shaped;
}

QString elided(const QString& text, const TextStyle& style, double width)
{
    constexpr double rounding = 0.01;
    if (shape(style.face, style.size, text)->width <= width + rounding)
        return text;
    const auto fits = [&](const QString& candidate) {
        return shapeAfresh(style.face, style.size, candidate)->width <= width + rounding;
    };
    const auto cut = [&](qsizetype kept) {
        if (style.elide == Qt::ElideMiddle)
            return text.left((kept + 1) / 2).trimmed() + u'…' + text.right(kept / 2).trimmed();
        return text.left(kept).trimmed() + u'…';
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
    // Half a surrogate pair is no character.
    if (low > 0 && text.at(low - 1).isHighSurrogate())
        --low;
    return cut(low);
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

FigurePath figurePath(const QString& value, const QString& unit, const FigureStyle& style, double room)
{
    double cap = style.cap;
    FigurePath figure = layOut(value, unit, style, cap);
    for (int step = 0; step < 3 && figure.width > room; ++step) {
        cap *= 0.9;
        figure = layOut(value, unit, style, cap);
    }
    if (figure.width > room && figure.width > 0)
        figure = layOut(value, unit, style, cap * room / figure.width);
    return figure;
}

} // namespace ambrelle
