// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/PixelPaint.h"

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

double Canvas::baseline(const Box& box, const TextStyle& style)
{
    return box.center().y() + style.size * style.face.capRatio / 2;
}

QPointF Canvas::snapped(QPointF point, const Typeface& face) const
{
    const QTransform& device = m_painter->deviceTransform();
    if (!face.pixel || device.type() > QTransform::TxScale)
        return point;
    const double scale = device.m11();
    const int grid = pixelGrid(scale);
    const auto snap = [&](double value, double origin) {
        return std::round(origin) + std::round(value * scale / grid) * grid;
    };
    return device.inverted().map(QPointF(snap(point.x(), device.dx()), snap(point.y(), device.dy())));
}

void Canvas::glyphs(QPointF origin, const ShapedText& shaped, const QColor& colour)
{
    const QTransform before = m_painter->transform();
    m_painter->translate(origin);
    m_painter->scale(shaped.scale, shaped.scale);
    if (!shaped.pixels.isEmpty() && !PixelPaint::blocks(*m_painter, shaped.pixels, colour))
        m_painter->fillPath(shaped.pixels, colour);
    m_painter->setPen(colour);
    for (const QGlyphRun& run : shaped.runs)
        m_painter->drawGlyphRun({}, run);
    m_painter->setTransform(before);
}

void Canvas::light(const QPainterPath& outline, const InkGlow& glow, LayerKey key)
{
    const double reach = glow.strokes * glow.spread / 2 + 1;
    key.add(glow.colour);
    key.add(glow.strokes);
    key.add(glow.alpha);
    key.add(glow.spread);
    stillLayer(key.text(), outline.boundingRect().adjusted(-reach, -reach, reach, reach),
        [&](Canvas& layer) { layer.lightAround(outline, glow); });
}

void Canvas::line(const Box& box, const QString& shown, const TextStyle& style, bool cut)
{
    const auto shaped = shape(style.face, style.size, shown);
    double x = box.left();
    if (style.align == Align::right)
        x = box.right() - shaped->width;
    else if (style.align == Align::centre)
        x = box.center().x() - shaped->width / 2;
    const QPointF pen(x, baseline(box, style));
    const QPointF origin = snapped(pen, style.face);
    if (style.glow) {
        LayerKey key(u"glowing text"_s);
        key.add(style.face);
        key.add(style.size);
        key.add(shown);
        light(outlineOf(*shaped).translated(origin), *style.glow, key);
    }
    if (style.shadow)
        glyphs(snapped(pen + style.shadow->offset, style.face), *shaped, style.shadow->colour);
    if (style.engraving)
        glyphs(origin + QPointF(0, 1), *shaped, *style.engraving);
    glyphs(origin, *shaped, style.colour);
    if (style.struck && shaped->width > 0) {
        const double middle = origin.y() - style.size * style.face.capRatio * 0.42;
        const double thickness = std::max(1.0, style.size / 14);
        line({origin.x() - 1, middle}, {origin.x() + shaped->width + 1, middle}, QPen(style.colour, thickness));
    }
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
    if (box.width() <= 0)
        return 0;
    const QString shown = elided(text, style, box.width());
    if (!muted())
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

} // namespace ambrelle
