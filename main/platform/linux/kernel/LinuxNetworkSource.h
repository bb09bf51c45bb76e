// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/SystemSources.h"

namespace ambrelle {

/// The interfaces in /proc/net/dev. Counted are Ethernet and Wi-Fi cards and mobile broadband, that is interfaces with
/// a device behind them. Where there is none, as inside a container whose eth0 is one end of a virtual pair, those
/// count that are named like one.
class LinuxNetworkSource final : public NetworkSource {
public:
    explicit LinuxNetworkSource(const QByteArray& procFolder = "/proc", const QByteArray& sysFolder = "/sys");

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    std::optional<QList<InterfaceCounters>> interfaces() override;

private:
    bool isCard(const QByteArray& name) const;
    void decideWhatCounts();

    KeptFile m_file;
    QByteArray m_interfaceFolder;
    QList<InterfaceCounters> m_interfaces; // the names and decisions of the last reading
    bool m_available = true;
};

} // namespace ambrelle
