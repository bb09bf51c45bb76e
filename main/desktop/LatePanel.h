// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <optional>

namespace ambrelle {

/// A panel whose window is made when it is first shown: until then it costs next to nothing, and remembers what it is
/// told.
class LatePanel final : public PanelWindow {
public:
    LatePanel(WindowHost& host, PanelDelegate& delegate);
    ~LatePanel() override;

    void setFrame(const QRectF& frame) override;
    QRectF frame() const override { return m_window ? m_window->frame() : m_frame; }
    void show() override;
    void hide() override;
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override;
    void setClickThrough(bool through) override;
    void setInputArea(const QRectF& area) override;
    void setOutline(const QList<RoundedArea>& areas) override;
    void update(const QRectF& area) override;
    double pixelRatio() const override; ///< of the screen it will come to, while it has no window
    void namesChanged() override;

private:
    WindowHost& m_host;
    PanelDelegate& m_delegate;
    // Of the window to be made.
    QRectF m_frame;
    WindowLevel m_level = WindowLevel::desktop;
    double m_opacity = 1;
    bool m_clickThrough = false;
    std::optional<QRectF> m_inputArea;
    QList<RoundedArea> m_outline;
    std::unique_ptr<PanelWindow> m_window; // none before it is shown
};

} // namespace ambrelle
