// SPDX-License-Identifier: MIT

#include "faces/FacePainter.h"

#include "drawing/LayerCache.h"

namespace ambrelle {

namespace {

constexpr double shadowReach = 8; // of a plate, face points
constexpr double backdropOutset = 6;
constexpr float dimOpacity = 0.35F;
constexpr float glassOpacity = 0.14F;
constexpr float glassEdgeOpacity = 0.3F;
constexpr double borderWidth = 1.5;
constexpr double editOutset = 4;
constexpr double editOpacity = 0.92;

QRectF outset(const QRectF& rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

QPen linePen(const QColor& colour, double width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
}

/// A rounded outline whose line lies inside `rect`.
void drawFrame(QPainter& painter, const QRectF& rect, double corner, const QPen& pen)
{
    const double half = pen.widthF() / 2;
    const double radius = std::max(0.0, corner - half);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(outset(rect, -half), radius, radius);
}

/// Whether the second is all that is different.
bool differInSecond(const Reading& before, const Reading& after)
{
    const auto* from = std::get_if<ClockReading>(&before);
    const auto* to = std::get_if<ClockReading>(&after);
    if (!from || !to || !from->second || !to->second)
        return false;
    ClockReading same = *from;
    same.second = to->second;
    return same == *to;
}

} // namespace

FaceLook FaceLook::of(const WidgetConfig& config, bool editing)
{
    return {config.size(), config.effectiveScale(), config.backdrop, config.border, config.opacity, editing};
}

FacePainter::FacePainter(FaceView view, LayerCache& layers)
    : m_view(std::move(view))
    , m_layers(layers)
{
}

void FacePainter::paintOnce(
    QPainter& painter, const FaceView& view, const FaceLook& look, std::shared_ptr<const Reading> reading)
{
    LayerCache layers; // nothing is drawn twice
    FacePainter face(view, layers);
    face.setLook(look);
    face.setReading(std::move(reading));
    face.paint(painter, face.reach(), 0);
}

void FacePainter::setView(FaceView view)
{
    m_view = std::move(view);
    m_result = {};
    m_still = {};
}

void FacePainter::setLook(const FaceLook& look)
{
    m_look = look;
    m_still = {};
}

QRectF FacePainter::setReading(std::shared_ptr<const Reading> reading)
{
    const bool ticks = !m_result.ticking.isEmpty() && m_reading && differInSecond(*m_reading, *reading);
    m_reading = std::move(reading);
    if (ticks)
        return tickingArea();
    m_still = {};
    return reach();
}

QStringList FacePainter::texts() const
{
    if (!m_reading)
        return {};
    QImage nowhere(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&nowhere);
    CanvasRecord record;
    m_view.draw(painter, *m_reading, {.record = &record});
    QStringList all;
    for (const CanvasMark& mark : record) {
        if (mark.kind != CanvasMark::Kind::symbol)
            all += mark.text;
    }
    if (const auto* photo = std::get_if<PhotoReading>(m_reading.get()); photo && !photo->description.isEmpty())
        all += photo->description;
    return all;
}

QRectF FacePainter::scaled(const QRectF& facePoints) const
{
    return {facePoints.topLeft() * m_look.scale, facePoints.size() * m_look.scale};
}

QRectF FacePainter::reach() const
{
    return outset({{}, m_look.size}, std::max(shadowReach * m_look.scale, backdropOutset));
}

QRectF FacePainter::outline() const
{
    return outset({{}, m_look.size}, m_look.backdrop == Backdrop::none ? 0 : backdropOutset);
}

double FacePainter::outlineCorner() const
{
    return m_view.style().corner * m_look.scale + (m_look.backdrop == Backdrop::none ? 0 : backdropOutset);
}

QPolygonF FacePainter::silhouette() const
{
    if (m_look.backdrop != Backdrop::none || m_look.border)
        return {};
    return QTransform::fromScale(m_look.scale, m_look.scale).map(m_view.silhouette());
}

void FacePainter::paint(QPainter& painter, const QRectF& area, double time)
{
    if (!m_reading || !area.intersects(reach()))
        return;
    const double opacity = m_look.opacity * (m_look.editing ? editOpacity : 1);
    if (opacity < 1) {
        const DeviceLayer whole(painter, area & reach(), [&](QPainter& layer) { compose(layer, area, time); });
        whole.paint(painter, opacity);
    } else {
        compose(painter, area, time);
    }
    if (m_look.editing)
        drawEditMark(painter);
}

void FacePainter::compose(QPainter& painter, const QRectF& area, double time)
{
    const bool changesOften = time > 0 || !m_result.ticking.isEmpty();
    const bool isFrame = changesOften && movingArea().contains(area);
    if (isFrame && !m_still.covers(painter, area))
        m_still = DeviceLayer(painter, movingArea(), [this](QPainter& layer) { drawStill(layer); });
    if (isFrame)
        m_still.paint(painter);
    else
        drawStill(painter);
    if (m_result.isStill())
        return;
    painter.save();
    painter.scale(m_look.scale, m_look.scale);
    m_view.drawMoving(painter, *m_reading, {.time = time, .layers = &m_layers});
    painter.restore();
}

void FacePainter::drawStill(QPainter& painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    drawBackdrop(painter);
    painter.save();
    painter.scale(m_look.scale, m_look.scale);
    m_result = m_view.drawStill(painter, *m_reading, {.layers = &m_layers});
    painter.restore();
    if (m_look.border)
        drawFrame(painter, {{}, m_look.size}, m_view.style().corner * m_look.scale,
            linePen(m_view.style().accent, borderWidth));
    painter.restore();
}

void FacePainter::drawBackdrop(QPainter& painter) const
{
    if (m_look.backdrop == Backdrop::none)
        return;
    const bool glass = m_look.backdrop == Backdrop::glass;
    painter.setPen(Qt::NoPen);
    painter.setBrush(glass ? QColor::fromRgbF(1, 1, 1, glassOpacity) : QColor::fromRgbF(0, 0, 0, dimOpacity));
    painter.drawRoundedRect(outline(), outlineCorner(), outlineCorner());
    if (glass)
        drawFrame(painter, outline(), outlineCorner(), linePen(QColor::fromRgbF(1, 1, 1, glassEdgeOpacity), 1));
}

void FacePainter::drawEditMark(QPainter& painter) const
{
    QPen pen = linePen(m_view.style().ink, borderWidth);
    pen.setDashPattern({6 / borderWidth, 4 / borderWidth}); // in parts of the line's width
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, outset({{}, m_look.size}, editOutset), m_view.style().corner * m_look.scale + editOutset, pen);
    painter.restore();
}

QRectF FacePainter::movingArea() const
{
    QRectF all;
    for (const Canvas::MovingArea& part : m_result.moving)
        all |= scaled(part.area);
    return QRectF(outset(all, 1).toAlignedRect()) | tickingArea();
}

QRectF FacePainter::tickingArea() const
{
    QRectF all;
    for (const QRectF& part : m_result.ticking)
        all |= scaled(part);
    return all.isEmpty() ? all : QRectF(outset(all, 1).toAlignedRect());
}

} // namespace ambrelle
