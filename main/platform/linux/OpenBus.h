#pragma once

#include <QDBusConnection>

#include <functional>

namespace ambrelle {

/// Connects to a message bus, when somebody first needs it.
using OpenBus = std::function<QDBusConnection()>;

} // namespace ambrelle
