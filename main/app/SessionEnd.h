// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QGuiApplication;
class QSessionManager;

namespace ambrelle {

/// Ends the program with the user's session, at once and without asking its windows: the panels refuse to be closed,
/// and everything is stored already. A session manager is told never to start the program again, which is the login
/// item's business.
class SessionEnd final : public QObject {
public:
    explicit SessionEnd(QGuiApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void answer(QSessionManager& manager);
};

} // namespace ambrelle
