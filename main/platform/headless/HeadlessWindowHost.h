// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

namespace ambrelle {

/// A machine without a display, for the modes that render and exit: one fixed screen of 1440 × 900 points, windows that
/// show nowhere and hear nothing.
class HeadlessWindowHost final : public WindowHost {
public:
    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    QList<ScreenInfo> screens() const override;
    QPointF pointer() const override { return {}; }
    QRectF toolkitRect(const QRectF& rect) const override { return rect; }
    bool isComposited() const override { return false; }
    std::unique_ptr<PanelWindow> makePanel(PanelDelegate& delegate) override;
    std::unique_ptr<BackdropWindow> makeBackdrop(BackdropDelegate& delegate) override;
    std::unique_ptr<SceneWindow> makeScene(OrnamentDelegate& delegate) override;
};

} // namespace ambrelle
