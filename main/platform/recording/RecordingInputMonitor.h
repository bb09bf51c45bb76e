// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"

#include <QList>
#include <QPointer>

#include <utility>

namespace ambrelle {

/// A user whom a test plays: it sends the signals itself.
class RecordingInputMonitor final : public InputMonitor {
public:
    using InputMonitor::metresPerPoint;

    QString currentWhyNot; ///< empty: available
    bool currentTellsPointer = true;
    std::optional<double> idle = 0.0; ///< seconds since the last input
    double currentMetresPerPoint = 0.001;
    bool isDeferred = false; ///< whether answers wait for answer()

    bool isRunning = false;
    int starts = 0;
    int questions = 0; ///< how often the time since the last input was asked for

    bool isAvailable() const override { return currentWhyNot.isEmpty(); }
    QString whyNot() const override { return currentWhyNot; }
    bool tellsPointer() const override { return currentTellsPointer; }
    void start() override
    {
        isRunning = true;
        ++starts;
    }
    void stop() override { isRunning = false; }
    void secondsSinceInput(QObject* context, Answer answer) override
    {
        ++questions;
        m_waiting.append({context, std::move(answer)});
        if (!isDeferred)
            this->answer();
    }
    double metresPerPoint() const override { return currentMetresPerPoint; }

    void answer() ///< what was asked so far, in that order
    {
        for (const auto& [context, give] : std::exchange(m_waiting, {})) {
            if (context)
                give(idle);
        }
    }

private:
    QList<std::pair<QPointer<QObject>, Answer>> m_waiting;
};

} // namespace ambrelle
