// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/PanelSurface.h"
#include "platform/wayland/window/OutputShield.h"

#include <QTimer>

#include <vector>

namespace ambrelle {

/// Keeps a drag going under a compositor that gives the pointer to whatever lies below it while a button is held. Such
/// a one gives itself away when the pointer leaves the pressed window; then, and in later drags from their beginning,
/// there is a shield over each output, which hands on what it hears until the button is up.
class DragCatcher final : public QObject {
public:
    DragCatcher(WaylandParts& parts, PanelSurface& panel);
    ~DragCatcher() override;

    void follow(); ///< what the user sees of the panel begins to go with the pointer

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void raise();
    void hear(const QSinglePointEvent& event, const QPointF& place);

    WaylandParts& m_parts;
    PanelSurface& m_panel;
    std::vector<std::unique_ptr<OutputShield>> m_shields;
    QTimer m_patience; ///< with something above that has taken the pointer for good
};

} // namespace ambrelle
