// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <csignal>
#include <memory>

namespace ambrelle {

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into one of Qt's. One object per process.
class EndingSignals : public QObject {
    Q_OBJECT
public:
    EndingSignals();
    ~EndingSignals() override;

Q_SIGNALS:
    void received();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

/// Keeps those signals waiting while nobody can hear them yet, or any more. Of the thread that makes it and the threads
/// that it starts meanwhile.
class HeldEndingSignals {
public:
    HeldEndingSignals() { hold(); }
    ~HeldEndingSignals() { release(); }
    Q_DISABLE_COPY_MOVE(HeldEndingSignals)

    void hold();
    void release(); ///< what came meanwhile comes now
    bool take() const; ///< whether one came while they are held; it will not come any more

private:
    bool m_isHolding = false;
    sigset_t m_before{};
};

} // namespace ambrelle
