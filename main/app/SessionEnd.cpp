// SPDX-License-Identifier: MIT

#include "app/SessionEnd.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

namespace ambrelle {

SessionEnd::SessionEnd(QGuiApplication& application)
{
    application.installEventFilter(this);
    // The one when the session is saved, the other when it ends; either may come alone.
    connect(&application, &QGuiApplication::saveStateRequest, this, &SessionEnd::answer, Qt::DirectConnection);
    connect(&application, &QGuiApplication::commitDataRequest, this, &SessionEnd::answer, Qt::DirectConnection);
}

bool SessionEnd::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Quit || watched != QCoreApplication::instance())
        return false;
    event->accept();
    QCoreApplication::exit();
    return true;
}

void SessionEnd::answer(QSessionManager& manager)
{
    manager.setRestartHint(QSessionManager::RestartNever);
}

} // namespace ambrelle
