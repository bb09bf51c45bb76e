#include "app/Environment.h"

#include <QtGlobal>

#include <xcb/xcb.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* platformName = "QT_QPA_PLATFORM";

bool displayAnswers()
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

Environment::Environment(bool batch)
    : m_batch(batch)
{
    // A desktop's own toolkit theme would load that desktop's whole toolkit, for widgets that draw themselves. An empty
    // value would not do: the toolkit then looks elsewhere.
    put("XDG_CURRENT_DESKTOP", "none");
    put("QT_XCB_GL_INTEGRATION", "none");
    // Repaints wait for no further timer: what changes together already comes in one round. It stays set, since the
    // toolkit reads it at the first repaint.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    if (batch)
        put(platformName, "offscreen");
    else if (qEnvironmentVariableIsEmpty(platformName) || qgetenv(platformName).startsWith("wayland"))
        put(platformName, "xcb"); // under Wayland too: only X11 windows can be placed
}

void Environment::put(const char* name, const QByteArray& value)
{
    m_replaced.append({name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray()});
    qputenv(name, value);
}

QString Environment::whyNoDisplay() const
{
    if (m_batch || !qgetenv(platformName).startsWith("xcb"))
        return {};
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return u"Ambrelle needs an X11 display (or XWayland), and the variable DISPLAY names none."_s;
    if (!displayAnswers())
        return u"Ambrelle cannot reach the display “%1”."_s.arg(qEnvironmentVariable("DISPLAY"));
    return {};
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
