// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/PanelSurface.h"
#include "platform/WindowHost.h"

#include <optional>

namespace ambrelle {

/// What a panel is wherever the toolkit shows it; how its window comes to its place, its level and its input is the
/// window system's.
class SurfacePanel : public PanelWindow {
public:
    /// A scene stands below all panels of the desktop level, whose level it keeps.
    enum class Rank { scene, panel };

    SurfacePanel(const SurfacePanel&) = delete;
    SurfacePanel& operator=(const SurfacePanel&) = delete;
    ~SurfacePanel() override;

    void setFrame(const QRectF& frame) final;
    QRectF frame() const final { return m_frame; }
    void setClickThrough(bool through) final;
    void setInputArea(const QRectF& area) final;
    void update(const QRectF& area) override { m_surface->repaint(area); }
    double pixelRatio() const final { return m_surface->pixelRatio(); }
    void namesChanged() final { m_surface->namesChanged(); }

    PanelSurface& surface() const { return *m_surface; }
    bool isScene() const { return m_rank == Rank::scene; }
    bool isShown() const { return m_surface->isVisible(); }
    virtual void place() = 0; ///< puts the window where its frame says, after the screens have moved

protected:
    SurfacePanel(PanelDelegate& delegate, const ScreenList& screens, Rank rank, std::unique_ptr<SurfaceCanvas> canvas);

    QRect wantedPlace() const; ///< of the frame, as the toolkit counts
    /// What users take for the panel, in window points: what would hear the pointer, heard or not.
    QRectF body() const { return m_inputArea.value_or(QRectF({}, m_frame.size())); }
    /// Window points; empty: none of it hears the pointer, nothing: all of it.
    std::optional<QRectF> inputArea() const { return m_clickThrough ? QRectF() : m_inputArea; }
    virtual void applyInput() = 0;

private:
    PanelSurface* m_surface; ///< deletes itself once retired
    const ScreenList& m_screens;
    Rank m_rank;
    QRectF m_frame;
    bool m_clickThrough = false;
    std::optional<QRectF> m_inputArea;
};

} // namespace ambrelle
