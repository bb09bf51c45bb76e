// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/DeviceImage.h"
#include "drawing/LayerCache.h"
#include "drawing/PixelPaint.h"
#include "drawing/Symbols.h"

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QPainterPath rounded(const QRectF& box, double radius)
{
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

} // namespace

Canvas::Canvas(QPainter& painter, const Setup& setup)
    : m_painter(painter)
    , m_setup(setup)
{
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
}

void Canvas::fill(const QPainterPath& path, const QBrush& brush)
{
    if (muted() || path.isEmpty())
        return;
    if (smooth())
        m_painter.fillPath(path, brush);
    else
        PixelPaint(m_painter, m_setup.finish).fill(path, brush);
}

void Canvas::fill(const Box& box, const QBrush& brush, double radius)
{
    if (muted() || box.isEmpty())
        return;
    if (radius > 0)
        fill(rounded(box, std::min({radius, box.width() / 2, box.height() / 2})), brush);
    else if (smooth())
        m_painter.fillRect(box, brush);
    else
        PixelPaint(m_painter, m_setup.finish).fill(QRectF(box), brush);
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
    if (smooth())
        m_painter.strokePath(path, pen);
    else
        PixelPaint(m_painter, m_setup.finish).stroke(path, pen);
}

void Canvas::frame(const Box& box, const QPen& pen, double radius)
{
    if (!smooth() && radius <= 0) {
        if (!muted())
            PixelPaint(m_painter, m_setup.finish).frame(box, pen.brush(), pen.widthF());
        return;
    }
    const double half = pen.widthF() / 2;
    stroke(rounded(box.inset(half), std::max(0.0, radius - half)), pen);
}

void Canvas::line(QPointF from, QPointF to, const QPen& pen)
{
    if (smooth() && !muted()) {
        m_painter.setPen(pen);
        m_painter.drawLine(from, to);
        return;
    }
    QPainterPath path(from);
    path.lineTo(to);
    stroke(path, pen);
}

void Canvas::rule(const Box& box, const QBrush& brush, double thickness)
{
    fill(box.centred(box.width(), thickness), brush);
}

void Canvas::paint(const std::function<void(QPainter&)>& draw)
{
    if (muted())
        return;
    m_painter.save();
    draw(m_painter);
    m_painter.restore();
}

void Canvas::symbol(const Box& box, const QString& name, double size, const QBrush& fill)
{
    if (muted())
        return;
    const Box square = box.centred(size, size);
    QPainterPath path = QTransform::fromScale(size, size).map(symbolPath(name));
    if (smooth()) {
        path.translate(square.topLeft());
        m_painter.fillPath(path, fill);
    } else {
        path.translate(std::round(square.x()), std::round(square.y()));
        PixelPaint(m_painter, m_setup.finish).fill(path, fill);
    }
    note({.kind = CanvasMark::Kind::symbol,
        .text = name,
        .box = box,
        .ink = path.boundingRect(),
        .size = size,
        .colour = fill.color()});
}

void Canvas::still(const QString& name, const QRectF& area, const std::function<void(Canvas&)>& draw)
{
    if (muted())
        return;
    Setup plain{.ground = m_setup.ground, .finish = m_setup.finish};
    if (!m_setup.layers) {
        plain.record = m_setup.record;
        Canvas direct(m_painter, plain);
        draw(direct);
        return;
    }
    // The layer lies on whole device pixels; where the face does not, it keeps the face's fraction of a pixel.
    const QTransform& device = m_painter.deviceTransform();
    const QRect pixels = devicePixels(m_painter, area);
    const QString key = u"%1 %2 %3 %4 %5"_s.arg(m_setup.layerKey, name)
                            .arg(device.m11(), 0, 'f', 4)
                            .arg(device.dx() - std::floor(device.dx()), 0, 'f', 2)
                            .arg(device.dy() - std::floor(device.dy()), 0, 'f', 2);
    const QImage* layer = m_setup.layers->find(key);
    QImage fresh;
    if (!layer || layer->size() != pixels.size()) {
        fresh = deviceImage(m_painter, pixels, [&](QPainter& painter) {
            Canvas canvas(painter, plain);
            draw(canvas);
        });
        m_setup.layers->insert(key, fresh);
        layer = &fresh;
    }
    paintDeviceImage(m_painter, pixels.topLeft(), *layer);
}

void Canvas::moving(const QRectF& area, const Motion& motion, const std::function<void(Canvas&, double)>& draw)
{
    m_moving.append({area, motion});
    if (m_setup.pass == Pass::still)
        return;
    m_inMotion = true;
    draw(*this, m_setup.time);
    m_inMotion = false;
}

void Canvas::hit(const QRectF& area, const FaceAction& action)
{
    m_hits.append({area, action});
}

void Canvas::note(CanvasMark mark) const
{
    if (!m_setup.record)
        return;
    mark.ground = m_setup.ground;
    m_setup.record->append(mark);
}

} // namespace ambrelle
