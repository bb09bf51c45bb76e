// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/Colours.h"
#include "drawing/DeviceImage.h"
#include "drawing/InkMask.h"
#include "drawing/Pens.h"
#include "drawing/PixelPaint.h"
#include "drawing/Symbols.h"

#include <array>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

QPainterPath roundedPath(const QRectF& box, double radius)
{
    const double fitting = std::min({radius, box.width() / 2, box.height() / 2});
    QPainterPath path;
    if (fitting > 0)
        path.addRoundedRect(box, fitting, fitting);
    else
        path.addRect(box);
    return path;
}

namespace {

/// Of equal drawings at several places each wavers in its own way.
std::uint64_t placeSeed(const QTransform& change)
{
    const auto tenths = [](double points) { return static_cast<std::uint64_t>(std::llround(points * 10)); };
    return tenths(change.dx()) * 31 + tenths(change.dy());
}

} // namespace

Canvas::Canvas(QPainter& painter, const Setup& setup)
    : m_painter(&painter)
    , m_setup(setup)
{
    m_painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
}

void Canvas::fill(const QPainterPath& path, const QBrush& brush)
{
    if (muted() || path.isEmpty())
        return;
    if (smooth())
        m_painter->fillPath(path, brush);
    else
        PixelPaint(*m_painter, m_setup.finish).fill(path, brush);
}

void Canvas::fill(const Box& box, const QBrush& brush, double radius)
{
    if (muted() || box.isEmpty())
        return;
    if (radius > 0)
        fill(roundedPath(box, radius), brush);
    else if (smooth())
        m_painter->fillRect(box, brush);
    else
        PixelPaint(*m_painter, m_setup.finish).fill(QRectF(box), brush);
}

void Canvas::disc(QPointF centre, double radius, const QBrush& brush)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    fill(path, brush);
}

void Canvas::stroke(const QPainterPath& path, const QPen& pen)
{
    if (muted() || path.isEmpty())
        return;
    if (manner() != StrokeManner::plain)
        strokeByHand(*m_painter, path, pen, manner(), placeSeed(m_change));
    else if (smooth())
        m_painter->strokePath(path, pen);
    else
        PixelPaint(*m_painter, m_setup.finish).stroke(path, pen);
}

void Canvas::lightAround(const QPainterPath& path, const InkGlow& glow)
{
    const double reach = glow.strokes * glow.spread / 2;
    if (muted() || path.isEmpty() || reach <= 0)
        return;
    if (!smooth()) {
        for (int stroke = glow.strokes; stroke > 0; --stroke)
            this->stroke(path, roundPen(faded(glow.colour, glow.alpha), stroke * glow.spread));
        return;
    }
    // As many strokes lie over a pixel as its distance from the path leaves.
    std::array<double, 256> opacities{};
    for (std::size_t cover = 0; cover < opacities.size(); ++cover)
        opacities[cover] = 1 - std::pow(1 - glow.alpha, glow.strokes * static_cast<double>(cover) / 255);
    const QTransform device = m_painter->deviceTransform();
    const double across = reach * std::sqrt(std::abs(device.determinant()));
    const QRect pixels = devicePixels(*m_painter, path.boundingRect().adjusted(-reach, -reach, reach, reach));
    const QRect seen = m_painter->hasClipping() ? devicePixels(*m_painter, m_painter->clipBoundingRect()) : pixels;
    if (!pixels.intersects(seen))
        return;
    InkMask mask(pixels, across, seen);
    for (const QPolygonF& line : device.map(path).toSubpathPolygons())
        mask.add(line, QList<double>(line.size(), across));
    paintDeviceImage(*m_painter, mask.pixels().topLeft(), mask.tinted(glow.colour, opacities));
}

void Canvas::frame(const Box& box, const QPen& pen, double radius)
{
    if (!smooth() && radius <= 0) {
        if (!muted())
            PixelPaint(*m_painter, m_setup.finish).frame(box, pen.brush(), pen.widthF());
        return;
    }
    const double half = pen.widthF() / 2;
    stroke(roundedPath(box.inset(half), radius - half), pen);
}

void Canvas::line(QPointF from, QPointF to, const QPen& pen)
{
    if (smooth() && manner() == StrokeManner::plain && !muted()) {
        m_painter->setPen(pen);
        m_painter->drawLine(from, to);
        return;
    }
    QPainterPath path(from);
    path.lineTo(to);
    stroke(path, pen);
}

void Canvas::rule(const Box& box, const QBrush& brush, double thickness)
{
    if (manner() == StrokeManner::plain)
        fill(box.centred(box.width(), thickness), brush);
    else
        line({box.left(), box.center().y()}, {box.right(), box.center().y()}, QPen(brush, thickness));
}

void Canvas::paint(const std::function<void(QPainter&)>& draw)
{
    if (muted())
        return;
    m_painter->save();
    draw(*m_painter);
    m_painter->restore();
}

void Canvas::symbol(const Box& box, const QString& name, double size, const QBrush& fill)
{
    if (muted())
        return;
    const Box square = box.centred(size, size);
    QPainterPath path = QTransform::fromScale(size, size).map(symbolPath(name));
    if (smooth()) {
        path.translate(square.topLeft());
        m_painter->fillPath(path, fill);
    } else {
        path.translate(std::round(square.x()), std::round(square.y()));
        PixelPaint(*m_painter, m_setup.finish).fill(path, fill);
    }
    note({.kind = CanvasMark::Kind::symbol,
        .text = name,
        .box = box,
        .ink = path.boundingRect(),
        .size = size,
        .colour = fill.color()});
}

void Canvas::hit(const QRectF& area, const FaceAction& action)
{
    const QRectF answering = reach(area);
    if (!answering.isEmpty() || !m_room)
        m_hits.append({answering, action});
}

void Canvas::note(CanvasMark mark) const
{
    if (!m_setup.record)
        return;
    mark.ground = m_setup.ground;
    mark.corners = m_change.map(QPolygonF(mark.ink));
    mark.box = m_change.mapRect(mark.box);
    mark.ink = m_change.mapRect(mark.ink);
    mark.size *= std::sqrt(std::abs(m_change.determinant()));
    if (m_room && !m_room->contains(mark.ink))
        mark.cut = true;
    m_setup.record->append(mark);
}

} // namespace ambrelle
