// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/LayerRole.h"
#include "platform/wayland/window/ClickShields.h"
#include "platform/wayland/window/WaylandParts.h"

#include <QObject>

#include <map>
#include <memory>

class QWindow;

namespace ambrelle {

/// Menus and popovers that belong to a panel, as surfaces of the overlay layer: the compositor places popups only
/// beside windows that it manages, and panels are none. Those of other windows are left to the toolkit.
class PopupRoles final : public QObject {
    Q_OBJECT
public:
    explicit PopupRoles(WaylandParts& parts);
    ~PopupRoles() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOurs(const QWindow& window) const;
    void adopt(QWindow& window);
    void release(QWindow* window);
    bool holdBack(QWindow& window);
    void place(QWindow& window) const;
    void open(QWindow& window);
    bool closeForPress(const QWindow& pressed);
    void closeAll();
    void arrangeShields();

    WaylandParts& m_parts;
    std::map<QWindow*, std::unique_ptr<LayerRole>> m_roles; ///< null: not exposed yet
    QList<QWindow*> m_popups; ///< those that a click elsewhere closes, in the order of their opening
    ClickShields m_shields;
};

} // namespace ambrelle
