#include "app/Environment.h"

#include <QtGlobal>

#include <xcb/xcb.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* currentDesktopName = "XDG_CURRENT_DESKTOP";
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
    , m_hadCurrentDesktop(qEnvironmentVariableIsSet(currentDesktopName))
    , m_currentDesktop(qgetenv(currentDesktopName))
{
    // A desktop's own toolkit theme would load that desktop's whole toolkit, for widgets that draw themselves. An empty
    // value would not do: the toolkit then looks elsewhere.
    qputenv(currentDesktopName, "none");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    if (batch)
        qputenv(platformName, "offscreen");
    else if (qEnvironmentVariableIsEmpty(platformName) || qgetenv(platformName).startsWith("wayland"))
        qputenv(platformName, "xcb"); // under Wayland too: only X11 windows can be placed
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
    if (m_hadCurrentDesktop)
        qputenv(currentDesktopName, m_currentDesktop);
    else
        qunsetenv(currentDesktopName);
}

} // namespace ambrelle
