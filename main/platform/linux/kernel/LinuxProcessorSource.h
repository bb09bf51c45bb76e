// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/SystemSources.h"

namespace ambrelle {

/// The processors in /proc/stat.
class LinuxProcessorSource final : public ProcessorSource {
public:
    explicit LinuxProcessorSource(const QByteArray& procFolder = "/proc");

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    std::optional<QList<ProcessorTicks>> ticks() override;
    std::optional<std::array<double, 3>> loadAverages() override;
    double uptime() override;

private:
    KeptFile m_file;
    QList<ProcessorTicks> m_kernel; // what the kernel told last, without small steps back
    QList<ProcessorTicks> m_told; // what was told of it
    bool m_available = true;
};

} // namespace ambrelle
