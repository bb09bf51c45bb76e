// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/SystemSources.h"

#include <vector>

namespace ambrelle {

/// Memory in /proc/meminfo, and what zram devices take of it.
class LinuxMemorySource final : public MemorySource {
public:
    explicit LinuxMemorySource(const QByteArray& procFolder = "/proc", const QByteArray& sysFolder = "/sys");

    bool isAvailable() const override { return m_total > 0; }
    QString whyNot() const override;
    quint64 physicalMemory() override { return m_total; }
    std::optional<MemoryUse> use() override;

private:
    KeptFile m_file;
    std::vector<KeptFile> m_compressedDevices;
    quint64 m_total = 0;
};

} // namespace ambrelle
