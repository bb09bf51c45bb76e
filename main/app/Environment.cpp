// SPDX-License-Identifier: MIT

#include "app/Environment.h"

#include <QtGlobal>

namespace ambrelle {

namespace {

constexpr const char* platformName = "QT_QPA_PLATFORM";

} // namespace

Environment::Environment(const QByteArray& plugin)
{
    // A desktop's own toolkit theme would load that desktop's whole toolkit, for widgets that draw themselves. An empty
    // value would not do: the toolkit then looks elsewhere.
    put("XDG_CURRENT_DESKTOP", "none");
    put("QT_XCB_GL_INTEGRATION", "none");
    // Repaints wait for no further timer: what changes together already comes in one round. It stays set, since the
    // toolkit reads it at the first repaint.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    put(platformName, plugin);
}

void Environment::put(const char* name, const QByteArray& value)
{
    m_replaced.append({name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray()});
    qputenv(name, value);
}

QByteArray Environment::wishedPlugin()
{
    return qgetenv(platformName);
}

void Environment::restore() const
{
    for (const Variable& variable : m_replaced) {
        if (variable.value.isNull())
            qunsetenv(variable.name);
        else
            qputenv(variable.name, variable.value);
    }
}

} // namespace ambrelle
