// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/window/PopupRoles.h"
#include "platform/wayland/window/WaylandBackdrop.h"
#include "platform/wayland/window/WaylandScene.h"

namespace ambrelle {

/// Panels as surfaces of the layer shell. Make it after the application object, which must run on the "wayland"
/// platform plugin.
class WaylandWindowHost final : public WindowHost {
public:
    /// `factsOf`: what the desktop tells of screens besides.
    explicit WaylandWindowHost(ScreenList::FactsOf factsOf = {});
    ~WaylandWindowHost() override;

    bool isAvailable() const override { return m_parts != nullptr; }
    QString whyNot() const override;
    QList<ScreenInfo> screens() const override;
    QPointF pointer() const override;
    QRectF toolkitRect(const QRectF& rect) const override;
    bool isComposited() const override { return true; }
    /// Only while available; the panel must go before the host.
    std::unique_ptr<PanelWindow> makePanel(PanelDelegate& delegate) override;
    std::unique_ptr<BackdropWindow> makeBackdrop(BackdropDelegate& delegate) override; ///< likewise
    std::unique_ptr<SceneWindow> makeScene(OrnamentDelegate& delegate) override; ///< likewise

    bool admit(QWindow& window, const QString& token) override;

    /// Only while available.
    Activation& activation() { return m_parts->activation; }
    ScreenList& screenList() { return m_parts->screens; } ///< likewise
    LayerOrder& order() { return m_parts->order; } ///< likewise
    /// Global points of a place in the compositor's layout; likewise.
    QRectF fromLayout(const QRectF& place) const;
    const WaylandConnection* connection() const { return m_parts ? &m_parts->connection : nullptr; }

private:
    void take(WaylandPanel& panel);
    void screensSettled();

    std::unique_ptr<WaylandParts> m_parts;
    std::unique_ptr<PopupRoles> m_popups;
    QList<WaylandPanel*> m_panels; ///< scenes too
};

} // namespace ambrelle
