// SPDX-License-Identifier: MIT

#include "desktop/DragGesture.h"

#include <cmath>

namespace ambrelle {

void DragGesture::press(QPointF pointer)
{
    m_start = pointer;
    m_dragging = false;
}

std::optional<DragGesture::Step> DragGesture::move(QPointF pointer)
{
    if (!m_start)
        return std::nullopt;
    const QPointF by = pointer - *m_start;
    const bool began = !m_dragging && std::hypot(by.x(), by.y()) > threshold;
    m_dragging = m_dragging || began;
    if (!m_dragging)
        return std::nullopt;
    return Step{by, began};
}

DragGesture::Outcome DragGesture::release()
{
    const Outcome outcome = !m_start ? Outcome::none : m_dragging ? Outcome::drag : Outcome::click;
    cancel();
    return outcome;
}

} // namespace ambrelle
