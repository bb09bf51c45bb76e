#pragma once

#include <QString>

namespace ambrelle {

/// What the things that can be done with a widget are called, in its menu and to assistive technology.
namespace WidgetWording {

inline QString settings()
{
    return QStringLiteral("Widget Settings…");
}

inline QString size()
{
    return QStringLiteral("Size");
}

inline QString pin(bool pinned)
{
    return pinned ? QStringLiteral("Unpin") : QStringLiteral("Pin Above Windows");
}

inline QString remove()
{
    return QStringLiteral("Remove Widget");
}

} // namespace WidgetWording

} // namespace ambrelle
