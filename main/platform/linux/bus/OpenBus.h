// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>

#include <functional>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Connects to a message bus, when somebody first needs it.
using OpenBus = std::function<QDBusConnection()>;

/// Of the objects that have properties.
inline const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

/// Milliseconds for the answer of a service, which may have to be started for it.
inline constexpr int busPatience = 3000;

} // namespace ambrelle
