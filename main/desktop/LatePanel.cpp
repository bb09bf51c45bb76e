// SPDX-License-Identifier: MIT

#include "desktop/LatePanel.h"

#include "placement/ScreenPlacement.h"

namespace ambrelle {

LatePanel::LatePanel(WindowHost& host, PanelDelegate& delegate)
    : m_host(host)
    , m_delegate(delegate)
{
}

LatePanel::~LatePanel() = default;

void LatePanel::show()
{
    if (!m_window) {
        m_window = m_host.makePanel(m_delegate);
        m_window->setLevel(m_level);
        m_window->setFrame(m_frame);
        if (m_opacity < 1)
            m_window->setOpacity(m_opacity);
        m_window->setClickThrough(m_clickThrough);
        if (m_inputArea)
            m_window->setInputArea(*m_inputArea);
        m_window->setOutline(m_outline);
    }
    m_window->show();
}

void LatePanel::hide()
{
    if (m_window)
        m_window->hide();
}

void LatePanel::setFrame(const QRectF& frame)
{
    m_frame = frame;
    if (m_window)
        m_window->setFrame(frame);
}

void LatePanel::setLevel(WindowLevel level)
{
    m_level = level;
    if (m_window)
        m_window->setLevel(level);
}

void LatePanel::setOpacity(double opacity)
{
    m_opacity = opacity;
    if (m_window)
        m_window->setOpacity(opacity);
}

void LatePanel::setClickThrough(bool through)
{
    m_clickThrough = through;
    if (m_window)
        m_window->setClickThrough(through);
}

void LatePanel::setInputArea(const QRectF& area)
{
    m_inputArea = area;
    if (m_window)
        m_window->setInputArea(area);
}

void LatePanel::setOutline(const QList<RoundedArea>& areas)
{
    m_outline = areas;
    if (m_window)
        m_window->setOutline(areas);
}

void LatePanel::update(const QRectF& area)
{
    if (m_window)
        m_window->update(area);
}

double LatePanel::pixelRatio() const
{
    if (m_window)
        return m_window->pixelRatio();
    const auto screen = ScreenPlacement::screenNear(m_frame, m_host.screens());
    return screen ? screen->pixelRatio : 1;
}

void LatePanel::namesChanged()
{
    if (m_window)
        m_window->namesChanged();
}

} // namespace ambrelle
