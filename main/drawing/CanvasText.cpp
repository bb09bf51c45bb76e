// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/PixelPaint.h"

#include <cmath>

namespace ambrelle {

namespace {

/// Of a brush, the colour that is hardest to read on `ground`.
QColor faintest(const QBrush& brush, const QColor& ground)
{
    QColor worst = brush.color();
    if (const QGradient* gradient = brush.gradient()) {
        worst = gradient->stops().first().second;
        for (const auto& [place, colour] : gradient->stops()) {
            if (contrast(over(colour, ground), ground) < contrast(over(worst, ground), ground))
                worst = colour;
        }
    }
    return worst;
}

} // namespace

double Canvas::baseline(const Box& box, const TextStyle& style) const
{
    return box.center().y() + style.size * style.face.capRatio / 2;
}

QPointF Canvas::snapped(QPointF point, const Typeface& face) const
{
    if (!face.pixel)
        return point;
    const QTransform& device = m_painter.deviceTransform();
    const double scale = device.m11();
    const int grid = pixelGrid(scale);
    const auto snap = [&](double value, double origin) {
        return std::round(origin) + std::round(value * scale / grid) * grid;
    };
    return device.inverted().map(QPointF(snap(point.x(), device.dx()), snap(point.y(), device.dy())));
}

void Canvas::glyphs(QPointF origin, const ShapedText& shaped, const QColor& colour)
{
    const QTransform before = m_painter.transform();
    m_painter.translate(origin);
    m_painter.scale(shaped.scale, shaped.scale);
    if (!shaped.pixels.isEmpty())
        m_painter.fillPath(shaped.pixels, colour);
    m_painter.setPen(colour);
    for (const QGlyphRun& run : shaped.runs)
        m_painter.drawGlyphRun({}, run);
    m_painter.setTransform(before);
}

void Canvas::line(const Box& box, const QString& shown, const TextStyle& style, bool cut)
{
    const auto shaped = shape(style.face, style.size, shown);
    double x = box.left();
    if (style.align == Align::right)
        x = box.right() - shaped->width;
    else if (style.align == Align::centre)
        x = box.center().x() - shaped->width / 2;
    const QPointF origin = snapped({x, baseline(box, style)}, style.face);
    if (style.engraving)
        glyphs(origin + QPointF(0, 1), *shaped, *style.engraving);
    glyphs(origin, *shaped, style.colour);
    if (m_setup.record && !shown.isEmpty()) {
        note({.kind = CanvasMark::Kind::text,
            .text = shown,
            .box = box,
            .ink = shaped->ink.translated(origin),
            .size = style.size,
            .colour = style.colour,
            .axis = style.axis,
            .cut = cut});
    }
}

double Canvas::text(const Box& box, const QString& text, const TextStyle& style)
{
    if (muted() || box.width() <= 0)
        return 0;
    const QString shown = elided(text, style, box.width());
    line(box, shown, style, shown != text);
    return shape(style.face, style.size, shown)->width;
}

double Canvas::paragraph(const Box& box, const QString& text, const TextStyle& style, Qt::Alignment vertical)
{
    const double pitch = style.size * style.lineHeight;
    const QStringList lines = wrapped(text, style, box.width());
    const double height = pitch * static_cast<double>(lines.size());
    if (muted())
        return height;
    double y = vertical & Qt::AlignVCenter ? box.center().y() - height / 2 : box.top();
    for (const QString& shown : lines) {
        line({box.x(), y, box.width(), pitch}, shown, style, shown.endsWith(u'…') && !text.endsWith(u'…'));
        y += pitch;
    }
    return height;
}

double Canvas::figure(const Box& box, const QString& value, const QString& unit, const FigureStyle& style)
{
    if (muted())
        return 0;
    const FigurePath path = figurePath(value, unit, style, box.width());
    double x = box.left();
    if (style.align == Align::right)
        x = box.right() - path.width;
    else if (style.align == Align::centre)
        x = box.center().x() - path.width / 2;
    const QPointF pen = snapped({x, box.center().y() + path.cap / 2}, style.face);
    figure(box, path, pen, style.fill, value);
    m_painter.translate(pen);
    if (style.outline > 0)
        m_painter.strokePath(path.digits, roundPen(style.fill, style.outline));
    if (!path.unit.isEmpty()) {
        const QColor colour = style.unitColour ? *style.unitColour : style.fill.color();
        m_painter.fillPath(path.unit, colour);
        note({.kind = CanvasMark::Kind::figure,
            .text = unit,
            .box = box,
            .ink = path.unit.boundingRect().translated(pen),
            .size = path.cap / 0.72 * 0.55,
            .colour = colour});
    }
    m_painter.translate(-pen);
    return path.width;
}

void Canvas::figure(const Box& box, const FigurePath& path, QPointF pen, const QBrush& fill, const QString& value)
{
    if (muted())
        return;
    m_painter.fillPath(path.digits.translated(pen), fill);
    note({.kind = CanvasMark::Kind::figure,
        .text = value,
        .box = box,
        .ink = path.digits.boundingRect().translated(pen),
        .size = path.cap / 0.72,
        .colour = m_setup.record ? faintest(fill, m_setup.ground) : QColor()});
}

} // namespace ambrelle
