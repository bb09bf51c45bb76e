// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/PixelPaint.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double averageCapRatio = 0.72; // figures are noted with the size of an average face of their height

QColor colourAt(const QGradientStops& stops, double place)
{
    if (place <= stops.first().first)
        return stops.first().second;
    for (qsizetype index = 1; index < stops.size(); ++index) {
        const auto& [end, colour] = stops[index];
        const auto& [start, before] = stops[index - 1];
        if (place < end)
            return blended(before, colour, (place - start) / (end - start));
    }
    return stops.last().second;
}

/// The colour that the figure is judged by: of a gradient the one that three quarters of it are easier to read than.
QColor judged(const QBrush& brush, const QColor& ground)
{
    constexpr int samples = 32;
    const QGradient* gradient = brush.gradient();
    if (!gradient)
        return brush.color();
    QList<std::pair<double, QColor>> colours;
    for (int sample = 0; sample < samples; ++sample) {
        const QColor colour = colourAt(gradient->stops(), (sample + 0.5) / samples);
        colours.append({contrast(over(colour, ground), ground), colour});
    }
    std::ranges::sort(colours, {}, &std::pair<double, QColor>::first);
    return colours[samples / 4].second;
}

QColor mostLegible(const QBrush& brush, const QColor& ground)
{
    const QGradient* gradient = brush.gradient();
    if (!gradient)
        return brush.color();
    const QGradientStops stops = gradient->stops();
    return std::ranges::max_element(stops, {}, [&](const QGradientStop& stop) {
        return contrast(over(stop.second, ground), ground);
    })->second;
}

/// A gradient that is given in the frame of the digits, where they stand.
QBrush inFrame(const QBrush& brush, const FigurePath& path, QPointF pen)
{
    if (!brush.gradient() || brush.gradient()->coordinateMode() != QGradient::LogicalMode)
        return brush;
    QTransform frame = QTransform::fromTranslate(pen.x(), pen.y() - path.cap);
    frame.scale(path.digitsWidth, path.cap);
    QBrush placed = brush;
    placed.setTransform(brush.transform() * frame);
    return placed;
}

/// Whether a face is made of hundreds of little strokes, which take long to fill.
bool isIntricate(const QPainterPath& path, const QString& value)
{
    constexpr qsizetype most = 250; // elements of a character's outline; forty are usual
    return path.elementCount() > most * value.size();
}

QString unlit(QString value)
{
    for (QChar& character : value) {
        if (character.isDigit() || character.isSpace())
            character = u'8';
    }
    return value;
}

} // namespace

void Canvas::digits(const QPainterPath& path, const Typeface& face, double size, const QBrush& fill)
{
    if (smooth())
        m_painter->fillPath(path, fill);
    else if (face.pixel)
        PixelPaint(*m_painter, m_setup.finish).squares(path, fill, size / Typeface::squares);
    else
        PixelPaint(*m_painter, m_setup.finish).fill(path, fill);
}

/// Each character is a layer, so that one that is shown again, in whatever figure, is not filled again.
void Canvas::keptDigits(const QString& value, const FigurePath& path, QPointF pen, const FigureStyle& style)
{
    FigureStyle alone = style.kerned();
    alone.cap = path.cap;
    const double size = style.face.sizeForCap(path.cap);
    for (qsizetype index = 0; index < value.size(); ++index) {
        const QString character = value.sliced(index, 1);
        const QPointF start = pen + QPointF(path.places.value(index), 0);
        const QRectF area(start - QPointF(0.15, 1.1) * size, QSizeF(1.4, 1.4) * size);
        LayerKey key(u"digit"_s);
        key.add(style.face);
        key.add(path.cap);
        key.add(character);
        key.add(style.fill.color());
        stillLayer(key.text(), area, [&](Canvas& layer) {
            const FigurePath glyph = figurePath(character, {}, alone, size * 2);
            layer.digits(glyph.digits.translated(start), style.face, size, style.fill);
        });
    }
}

void Canvas::underFigure(const QString& value, const FigurePath& path, QPointF pen, const FigureStyle& style)
{
    const double size = style.face.sizeForCap(path.cap);
    if (style.ghost) {
        FigureStyle whole = style;
        whole.cap = path.cap;
        const FigurePath unlitPath = figurePath(unlit(value), {}, whole, path.digitsWidth * 2);
        digits(unlitPath.digits.translated(pen), style.face, size, *style.ghost);
    }
    if (!style.glow && !style.shadow)
        return;
    QPainterPath all = path.digits;
    all.addPath(path.unit);
    all.translate(pen);
    if (style.glow) {
        LayerKey key(u"glowing figure"_s);
        key.add(style.face);
        key.add(path.cap);
        key.add(value);
        key.add(path.width);
        light(all, *style.glow, key);
    }
    if (!style.shadow)
        return;
    const QPainterPath shadow = all.translated(style.shadow->offset);
    if (!smooth()) {
        digits(shadow, style.face, size, style.shadow->colour);
        return;
    }
    // Kept, or a figure that has not changed would be filled twice.
    LayerKey key(u"shadow of figure"_s);
    key.add(style.face);
    key.add(path.cap);
    key.add(value);
    key.add(path.width);
    key.add(style.shadow->colour);
    stillLayer(key.text(), shadow.boundingRect().adjusted(-1, -1, 1, 1),
        [&](Canvas& layer) { layer.digits(shadow, style.face, size, style.shadow->colour); });
}

double Canvas::figure(const Box& box, const QString& value, const QString& unit, const FigureStyle& style)
{
    if (muted())
        return figureWidth(value, unit, style, box.width());
    const FigurePath path = figurePath(value, unit, style, box.width());
    double x = box.left();
    if (style.align == Align::right)
        x = box.right() - path.width;
    else if (style.align == Align::centre)
        x = box.center().x() - path.width / 2;
    const QPointF pen = snapped({x, box.center().y() + path.cap / 2}, style.face);
    underFigure(value, path, pen, style);
    const QBrush fill = inFrame(style.fill, path, pen);
    const auto edge = [&](const QBrush& brush, double width) {
        const QPen line = roundPen(inFrame(brush, path, pen), width);
        if (smooth())
            m_painter->strokePath(path.digits.translated(pen), line);
        else
            PixelPaint(*m_painter, m_setup.finish).stroke(path.digits.translated(pen), line);
    };
    if (style.outline > 0 && style.outlineBrush)
        edge(*style.outlineBrush, 2 * style.outline);
    const QPainterPath digitsThere = path.digits.translated(pen);
    if (isIntricate(path.digits, value) && smooth() && fill.style() == Qt::SolidPattern)
        keptDigits(value, path, pen, style);
    else
        digits(digitsThere, style.face, style.face.sizeForCap(path.cap), fill);
    note({.kind = CanvasMark::Kind::figure,
        .text = value,
        .box = box,
        .ink = m_setup.record ? digitsThere.boundingRect() : QRectF(),
        .size = path.cap / averageCapRatio,
        .colour = m_setup.record ? judged(fill, m_setup.ground) : QColor()});
    if (style.outline > 0 && !style.outlineBrush)
        edge(style.fill, style.outline);
    if (path.unit.isEmpty())
        return path.width;
    const QColor colour = style.unitColour ? *style.unitColour : mostLegible(style.fill, m_setup.ground);
    const Typeface& face = style.unitFace ? *style.unitFace : style.face;
    digits(path.unit.translated(pen), face, face.fitted(face.sizeForCap(path.cap) * 0.55), colour);
    note({.kind = CanvasMark::Kind::figure,
        .text = unit,
        .box = box,
        .ink = path.unit.boundingRect().translated(pen),
        .size = path.cap / averageCapRatio * 0.55,
        .colour = colour});
    return path.width;
}

} // namespace ambrelle
