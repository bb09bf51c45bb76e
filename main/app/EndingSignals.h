// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

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

} // namespace ambrelle
