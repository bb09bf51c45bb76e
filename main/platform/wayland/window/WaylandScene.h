// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/window/WaylandPanel.h"

namespace ambrelle {

/// The decorations of one screen: a panel below the others, which the pointer does not meet.
class WaylandScene final : public SceneWindow {
public:
    WaylandScene(OrnamentDelegate& delegate, WaylandParts& parts)
        : m_panel(delegate, parts, WaylandPanel::Rank::scene)
    {
        m_panel.setClickThrough(true);
    }

    void setFrame(const QRectF& frame) override { m_panel.setFrame(frame); }
    QRectF frame() const override { return m_panel.frame(); }
    void show() override { m_panel.show(); }
    void update(const QRectF& area) override { m_panel.update(area); }
    void setOutline(const QList<QRectF>&) override { } // something always composites

    WaylandPanel& panel() { return m_panel; }

private:
    WaylandPanel m_panel;
};

} // namespace ambrelle
