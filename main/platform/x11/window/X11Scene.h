// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/window/X11Panel.h"

namespace ambrelle {

/// The decorations of one screen: a panel below the others, which the pointer does not meet.
class X11Scene final : public SceneWindow {
public:
    X11Scene(OrnamentDelegate& delegate, X11Parts& parts)
        : m_panel(delegate, parts, X11Panel::Rank::scene)
    {
        m_panel.setClickThrough(true);
    }

    void setFrame(const QRectF& frame) override { m_panel.setFrame(frame); }
    QRectF frame() const override { return m_panel.frame(); }
    void show() override { m_panel.show(); }
    void update(const QRectF& area) override { m_panel.update(area); }
    void setOutline(const QList<QRectF>& areas) override
    {
        QList<RoundedArea> outline;
        for (const QRectF& area : areas)
            outline.append({area});
        m_panel.setOutline(outline);
    }

    X11Panel& panel() { return m_panel; }

private:
    X11Panel m_panel;
};

} // namespace ambrelle
