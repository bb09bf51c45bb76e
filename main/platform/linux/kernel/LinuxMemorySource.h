// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/SystemSources.h"

#include <QDeadlineTimer>

#include <chrono>
#include <vector>

namespace ambrelle {

/// Memory in /proc/meminfo, and what zram devices take of it. New devices are looked for once a minute.
class LinuxMemorySource final : public MemorySource {
public:
    explicit LinuxMemorySource(const QByteArray& procFolder = "/proc", const QByteArray& sysFolder = "/sys",
        std::chrono::milliseconds searchPeriod = std::chrono::minutes(1));

    bool isAvailable() const override { return m_total > 0; }
    QString whyNot() const override;
    quint64 physicalMemory() override { return m_total; }
    std::optional<MemoryUse> use() override;

private:
    void findCompressedDevices();

    KeptFile m_file;
    QByteArray m_deviceFolder;
    std::chrono::milliseconds m_searchPeriod;
    QDeadlineTimer m_nextSearch;
    std::vector<KeptFile> m_compressedDevices;
    quint64 m_total = 0;
};

} // namespace ambrelle
