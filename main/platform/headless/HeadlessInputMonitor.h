#pragma once

#include "platform/InputMonitor.h"

namespace ambrelle {

/// A machine that nobody uses.
class HeadlessInputMonitor final : public InputMonitor {
    Q_OBJECT
public:
    using InputMonitor::metresPerPoint;

    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode does not see what is done at the machine."); }
    bool tellsPointer() const override { return false; }
    void start() override { }
    void stop() override { }
    void secondsSinceInput(QObject*, Answer answer) override { answer(std::nullopt); }
    double metresPerPoint() const override { return usualMetresPerPoint; }
};

} // namespace ambrelle
