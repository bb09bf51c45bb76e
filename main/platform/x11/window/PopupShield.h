// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

#include <memory>

class QWindow;

namespace ambrelle {

/// An X server that is a client of a Wayland compositor hears of no click beside its windows, and a menu would stay
/// until one of its lines is chosen. There, while a menu is open, a window that nobody sees lies below it on all
/// screens.
class PopupShield final : public QObject {
public:
    PopupShield();
    ~PopupShield() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Shield;
    void opened(QWindow& popup);
    void closed(QWindow* popup);
    void closeAll();

    QList<QWindow*> m_popups;
    std::unique_ptr<Shield> m_shield;
};

} // namespace ambrelle
