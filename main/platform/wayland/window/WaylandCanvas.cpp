// SPDX-License-Identifier: MIT

#include "platform/wayland/window/WaylandCanvas.h"

#include "platform/toolkit/PixelGrid.h"
#include "platform/toolkit/RasterSurface.h"

#include <QPainter>
#include <QScreen>

#include <qpa/qplatformscreen.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace ambrelle {

namespace {

/// The toolkit would wake other threads for areas of this size, which costs more than it gains.
void clear(QImage& image, const QRect& part)
{
    const auto bytes = static_cast<std::size_t>(part.width()) * sizeof(QRgb);
    for (int y = part.top(); y <= part.bottom(); ++y)
        std::memset(reinterpret_cast<QRgb*>(image.scanLine(y)) + part.left(), 0, bytes);
}

/// Makes what was painted there more transparent.
void fade(QImage& image, const QRect& part, double opacity)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(part, QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity)));
}

} // namespace

WaylandCanvas::WaylandCanvas(wl_shm* memory, Keeping keeping)
    : m_memory(memory)
    , m_keeping(keeping)
{
}

WaylandCanvas::~WaylandCanvas() = default;

void WaylandCanvas::paint(RasterSurface& surface, const QList<QRect>& parts, const Paint& paint)
{
    const double ratio = surface.pixelRatio();
    const PixelGrid grid(ratio);
    const QRect whole({0, 0}, surface.size());
    m_scale = static_cast<int>(std::max(1L, std::lround(surface.screen()->handle()->devicePixelRatio())));
    const bool all = prepare(grid.pixels(whole).size());
    if (!m_current)
        return; // no memory
    QImage image = m_current->image();
    for (const QRect& area : all ? QList<QRect>{whole} : parts) {
        const QRect part = grid.pixels(area) & QRect({0, 0}, m_current->size());
        clear(image, part);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        painter.setClipRect(grid.points(part));
        const bool goesOn = paint(painter, area);
        painter.end();
        if (!goesOn)
            return;
        image.setDevicePixelRatio(1);
        if (m_opacity < 1)
            fade(image, part, m_opacity);
        if (m_shownPart) {
            for (const QRect& unseen : QRegion(part) - grid.pixels(*m_shownPart))
                clear(image, unseen);
        }
        m_changed += part;
    }
    submit();
}

/// Makes the current buffer one of that size that can be painted on. True: it has none of the pixels from before.
bool WaylandCanvas::prepare(QSize pixels)
{
    std::erase_if(m_former, [](const auto& buffer) { return !buffer->isBeingRead(); });
    const bool fits = m_current && m_current->size() == pixels && !m_current->image().isNull();
    if (fits && !m_current->isBeingRead())
        return false;
    std::unique_ptr<PixelBuffer> fresh = PixelBuffer::make(m_memory, pixels);
    if (fits && fresh) {
        const QImage former = m_current->image();
        std::memcpy(fresh->image().bits(), former.constBits(), static_cast<std::size_t>(former.sizeInBytes()));
    }
    if (m_current && m_current->isBeingRead()) {
        m_current->forgetPixels();
        m_former.push_back(std::move(m_current));
    }
    m_current = std::move(fresh);
    return !fits;
}

bool WaylandCanvas::setShownPart(const std::optional<QRect>& part)
{
    return std::exchange(m_shownPart, part) != part;
}

void WaylandCanvas::setTarget(wl_surface* target)
{
    m_target = target;
    if (m_current)
        m_changed = QRect({0, 0}, m_current->size());
    submit();
}

void WaylandCanvas::submit()
{
    if (!m_target || !m_current || m_changed.isEmpty())
        return;
    wl_surface_set_buffer_scale(m_target, m_scale);
    m_current->attachTo(m_target);
    for (const QRect& part : std::exchange(m_changed, {}))
        wl_surface_damage_buffer(m_target, part.x(), part.y(), part.width(), part.height());
    wl_surface_commit(m_target);
    if (m_keeping == Keeping::nothing)
        m_current->forgetPixels();
}

} // namespace ambrelle
