// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/DeviceImage.h"
#include "drawing/LayerCache.h"
#include "drawing/PixelPaint.h"

#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

void Canvas::mapped(const QTransform& change, const std::function<void()>& draw)
{
    QTransform step = change;
    if (!smooth() && change.type() <= QTransform::TxTranslate)
        step = QTransform::fromTranslate(std::round(change.dx()), std::round(change.dy()));
    QPainter& painter = *m_painter;
    const QTransform outside = painter.transform();
    const QTransform before = std::exchange(m_change, step * m_change);
    painter.setTransform(step, true);
    draw();
    painter.setTransform(outside);
    m_change = before;
}

void Canvas::turned(QPointF centre, double degrees, const std::function<void()>& draw)
{
    QTransform turn = QTransform::fromTranslate(centre.x(), centre.y());
    turn.rotate(degrees);
    turn.translate(-centre.x(), -centre.y());
    mapped(turn, draw);
}

QRectF Canvas::reach(const QRectF& area) const
{
    const QRectF whole = m_change.mapRect(area);
    return m_room ? whole.intersected(*m_room) : whole;
}

void Canvas::within(const QPainterPath& shape, const std::function<void()>& draw)
{
    const std::optional<QRectF> before = m_room;
    m_room = reach(shape.boundingRect());
    if (muted()) {
        // What moves inside is cut when it is met, and only there.
        m_pending.append({shape, m_change});
        draw();
        m_pending.removeLast();
    } else {
        cutTo(shape, shape.boundingRect(), draw);
    }
    m_room = before;
}

void Canvas::cutTo(const QPainterPath& shape, const QRectF& area, const std::function<void()>& draw)
{
    if (!smooth()) {
        m_painter->save();
        PixelPaint(*m_painter, m_setup.finish).clip(shape);
        draw();
        m_painter->restore();
        return;
    }
    // Not the painter's own clip: that has jagged edges.
    QPainter& target = *m_painter;
    const QRect touched = devicePixels(target, shape.boundingRect() & area);
    const QRect pixels = touched.isEmpty() ? QRect(touched.topLeft(), QSize(1, 1)) : touched;
    const QImage layer = deviceImage(target, pixels, [&](QPainter& painter) {
        m_painter = &painter;
        draw();
    });
    m_painter = &target;
    if (!touched.isEmpty())
        paintDeviceImage(target, pixels.topLeft(), layer, target.deviceTransform().map(shape));
}

void Canvas::cutTo(const QList<Cut>& cuts, const QRectF& area, const std::function<void()>& draw)
{
    if (cuts.isEmpty()) {
        draw();
        return;
    }
    const QTransform hither = cuts.first().change * m_change.inverted();
    cutTo(hither.map(cuts.first().shape), area, [&] { cutTo(cuts.mid(1), area, draw); });
}

void Canvas::stillLayer(const QString& name, const QRectF& area, const std::function<void(Canvas&)>& draw)
{
    if (muted())
        return;
    Setup plain{.ground = m_setup.ground, .finish = m_setup.finish, .manner = m_setup.manner};
    if (!m_setup.layers) {
        plain.record = m_setup.record;
        Canvas direct(*m_painter, plain);
        direct.m_change = m_change;
        direct.m_room = m_room;
        draw(direct);
        return;
    }
    // The layer lies on whole device pixels; where the area does not, it keeps the area's fraction of a pixel.
    const QTransform& device = m_painter->deviceTransform();
    const QRect pixels = devicePixels(*m_painter, area);
    const QPointF corner = device.mapRect(area).topLeft();
    LayerKey key(m_setup.layerKey);
    key.add(name);
    key.add(pixels.width());
    key.add(pixels.height());
    for (const double part : {device.m11(), device.m12(), device.m21(), device.m22()})
        key.add(std::round(part * 1e4));
    for (const double place : {corner.x(), corner.y()})
        key.add(std::round((place - std::floor(place)) * 100));
    const QImage* layer = m_setup.layers->find(key.text());
    QImage fresh;
    if (!layer) {
        fresh = deviceImage(*m_painter, pixels, [&](QPainter& painter) {
            Canvas canvas(painter, plain);
            canvas.m_change = m_change;
            draw(canvas);
        });
        m_setup.layers->insert(key.text(), fresh, std::sqrt(std::abs(device.determinant())));
        layer = &fresh;
    }
    paintDeviceImage(*m_painter, pixels.topLeft(), *layer);
}

void Canvas::moving(const QRectF& area, const Motion& motion, const std::function<void(Canvas&, double)>& draw)
{
    const QRectF touched = reach(area);
    if (m_room && touched.isEmpty())
        return;
    m_moving.append({touched, motion});
    drawApart(area, [&] { draw(*this, m_setup.time); });
}

void Canvas::ticking(const QRectF& area, const std::function<void(Canvas&)>& draw)
{
    const QRectF touched = reach(area);
    if (m_room && touched.isEmpty())
        return;
    m_ticking.append(touched);
    drawApart(area, [&] { draw(*this); });
}

void Canvas::drawApart(const QRectF& area, const std::function<void()>& draw)
{
    if (m_setup.pass == Pass::still)
        return;
    m_inMotion = true;
    const QList<Cut> cuts = std::exchange(m_pending, {});
    cutTo(cuts, area, draw);
    m_pending = cuts;
    m_inMotion = false;
}

} // namespace ambrelle
