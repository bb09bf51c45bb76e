// SPDX-License-Identifier: MIT

#include "desktop/FaceMotion.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr qint64 referenceDate = 978307200; // 2001-01-01 00:00 UTC in seconds after 1970
constexpr double timeError = 0.01; // milliseconds: what times of so many seconds are rounded by
constexpr double oneFrame = 0.001; // parts due within a millisecond are drawn together

} // namespace

FaceMotion::FaceMotion(Clock& clock, std::function<void(const QRectF&)> repaint)
    : m_clock(clock)
    , m_repaint(std::move(repaint))
{
}

void FaceMotion::setActive(bool active)
{
    m_active = active;
    if (active)
        return;
    m_next.reset();
    m_parts.clear();
}

double FaceMotion::time() const
{
    if (!m_active)
        return 0;
    return static_cast<double>(m_clock.now().toMSecsSinceEpoch() - referenceDate * 1000) / 1000;
}

void FaceMotion::drawn(const Areas& areas, const QRectF& painted)
{
    if (!m_active)
        return;
    const double t = time();
    const double now = m_clock.elapsed();
    QList<Part> parts;
    for (const Canvas::MovingArea& area : areas) {
        const auto known = std::ranges::find_if(m_parts, [&](const Part& part) { return part.area == area; });
        // A part that was not drawn keeps its moment, however often its neighbours are drawn.
        const bool waits = known != m_parts.end() && !known->area.area.intersects(painted);
        parts.append({area, waits ? known->due : now + area.motion.next(t) - t});
    }
    m_parts = parts;
    schedule();
}

void FaceMotion::schedule()
{
    m_next.reset();
    const auto first = std::ranges::min_element(m_parts, {}, &Part::due);
    if (first == m_parts.end() || !std::isfinite(first->due))
        return;
    const double delay = std::max(1.0, std::ceil((first->due - m_clock.elapsed()) * 1000 - timeError));
    m_next = m_clock.after(std::chrono::milliseconds(static_cast<qint64>(delay)), [this] { frame(); });
}

void FaceMotion::frame()
{
    const double now = m_clock.elapsed() + oneFrame;
    for (const Part& part : QList<Part>(m_parts)) {
        if (part.due <= now)
            m_repaint(part.area.area);
    }
}

} // namespace ambrelle
