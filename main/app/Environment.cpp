// SPDX-License-Identifier: MIT

#include "app/Environment.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr const char* platformName = "QT_QPA_PLATFORM";
constexpr const char* idleTimeName = "QT_QPA_UPDATE_IDLE_TIME"; // the toolkit reads it when it first repaints

} // namespace

Environment::Environment(const QByteArray& plugin, const Variables& lasting)
{
    // A desktop's own toolkit theme would load that desktop's whole toolkit, for widgets that draw themselves. An empty
    // value would not do: the toolkit then looks elsewhere.
    put("XDG_CURRENT_DESKTOP", "none");
    put("QT_XCB_GL_INTEGRATION", "none");
    for (const auto& [name, value] : lasting)
        put(name, value, true);
    // Repaints wait for no further timer: what changes together already comes in one round.
    put(idleTimeName, "0");
    put(platformName, plugin);
}

Environment::~Environment()
{
    const QList<Variable> replaced = m_replaced;
    for (const Variable& variable : replaced)
        restore(variable.name);
}

void Environment::put(const char* name, const QByteArray& value, bool lasts)
{
    m_replaced.append({name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray(), lasts});
    qputenv(name, value);
}

void Environment::restore()
{
    const QList<Variable> replaced = m_replaced;
    for (const Variable& variable : replaced) {
        if (variable.name != idleTimeName && !variable.lasts)
            restore(variable.name);
    }
    QCoreApplication::instance()->installEventFilter(this);
}

void Environment::restore(const char* name)
{
    const auto variable = std::ranges::find(m_replaced, name, &Variable::name);
    if (variable == m_replaced.end())
        return;
    if (variable->value.isNull())
        qunsetenv(name);
    else
        qputenv(name, variable->value);
    m_replaced.erase(variable);
}

bool Environment::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::UpdateRequest && watched->isWindowType()) {
        restore(idleTimeName);
        QCoreApplication::instance()->removeEventFilter(this);
    }
    return false;
}

} // namespace ambrelle
