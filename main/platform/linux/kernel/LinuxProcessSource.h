#pragma once

#include "platform/linux/kernel/ProcessTable.h"

namespace ambrelle {

/// The processes in /proc. Answers before top() returns: reading a hundred processes takes about a third of a
/// millisecond, too little to be worth a thread.
class LinuxProcessSource final : public ProcessSource {
public:
    explicit LinuxProcessSource(const QByteArray& procFolder = "/proc");

    bool isAvailable() const override { return m_table.isAvailable(); }
    QString whyNot() const override;
    void top(int count, Completion completion) override;

private:
    ProcessTable m_table;
};

} // namespace ambrelle
