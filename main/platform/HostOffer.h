// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

#include <QByteArray>

#include <functional>
#include <memory>

namespace ambrelle {

/// How a host offers itself when the program starts.
struct HostOffer {
    /// The toolkit's platform plugins it stands for, as QT_QPA_PLATFORM names them. It runs on the first itself; who
    /// wishes one of the others gets this host all the same.
    QList<QByteArray> plugins;
    /// Why it cannot show windows here: one sentence, empty when it can. Asked before the application object exists.
    std::function<QString()> whyNot;
    /// The machine; null when it turns out that there is none after all. Called after the application object exists,
    /// with the user's own environment.
    std::function<std::unique_ptr<Machine>(const Machine::Wishes&)> make;
    /// Brings up a display that nobody sees, for as long as what it gives lives; null where that does not work, or
    /// there is no such thing. Called before the application object exists.
    std::function<std::shared_ptr<void>()> startDisplay{};
    /// Whether it could show windows in this session, as far as that is known without starting anything. May be asked
    /// at any time.
    std::function<bool()> isThere{};
    /// What the toolkit is told through its environment for as long as the program runs. The host keeps it from the
    /// programs that are opened.
    QList<std::pair<const char*, const char*>> variables{};
};

} // namespace ambrelle
