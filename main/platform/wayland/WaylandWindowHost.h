// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/ToolkitWindowHost.h"
#include "platform/wayland/window/PopupRoles.h"
#include "platform/wayland/window/WaylandBackdrop.h"
#include "platform/wayland/window/WaylandDropSpotter.h"
#include "platform/wayland/window/WaylandScene.h"

namespace ambrelle {

/// Panels as surfaces of the layer shell. Make it after the application object, which must run on the "wayland"
/// platform plugin.
class WaylandWindowHost final : public ToolkitWindowHost {
public:
    /// `factsOf`: what the desktop tells of screens besides.
    explicit WaylandWindowHost(ScreenList::FactsOf factsOf = {});
    ~WaylandWindowHost() override;

    bool isAvailable() const override { return m_parts != nullptr; }
    QString whyNot() const override;
    bool isComposited() const override { return true; }
    /// Only while available; the panel must go before the host.
    std::unique_ptr<PanelWindow> makePanel(PanelDelegate& delegate) override;
    std::unique_ptr<BackdropWindow> makeBackdrop(BackdropDelegate& delegate) override; ///< likewise
    std::unique_ptr<SceneWindow> makeScene(OrnamentDelegate& delegate) override; ///< likewise

    std::unique_ptr<DropSpotter> makeDropSpotter() override;
    bool admit(QWindow& window, const QString& token) override;

    ScreenList* screenList() const override { return m_parts ? &m_parts->screens : nullptr; }
    /// Only while available.
    Activation& activation() { return m_parts->activation; }
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
