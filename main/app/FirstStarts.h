// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "foundation/Ticket.h"
#include "platform/linux/update/Probation.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace ambrelle {

class Clock;
class UserDefaults;

/// Sees the program through its first starts in the place of a former version, and clears away what updates leave.
class FirstStarts : public QObject {
    Q_OBJECT
public:
    /// A version that has shown its widgets for so long gets through.
    static constexpr std::chrono::seconds probationTime{10};
    /// Until it is tried again what the disk, or another process in the work folder, has refused.
    static constexpr std::chrono::seconds retryTime{60};

    /// Before there are threads, and once it is known that nobody else shows widgets. The process may become another
    /// one here, with the same arguments. `program` is the running file.
    FirstStarts(QString program, char** arguments);
    ~FirstStarts() override; ///< as end(), with nobody having asked for it

    /// The version that did not get through its first start here, also at an earlier start; empty when none did.
    QString rejectedVersion(UserDefaults& defaults) const;
    /// The widgets stand.
    void proceed(Clock& clock, UserDefaults& defaults);
    /// The program ends. Because somebody asked it to: it gets through. Otherwise it stays on probation, though this
    /// was no crash: too many such starts bring the former version back. The clock and the settings may go then.
    void end(bool isAsked);

private:
    void settle(Clock& clock, UserDefaults& defaults);
    bool isTold(UserDefaults& defaults) const;

    const QString m_program;
    const QString m_version;
    Probation::Found m_found;
    Ticket m_next;
    std::unique_ptr<SerialWorker> m_worker; // not before there is something to do
};

} // namespace ambrelle
