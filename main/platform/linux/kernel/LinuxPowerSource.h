// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/linux/kernel/NetlinkSocket.h"
#include "platform/SystemSources.h"

#include <QDeadlineTimer>

#include <chrono>
#include <vector>

namespace ambrelle {

/// The batteries and plugs in /sys/class/power_supply. Reading a battery may ask a slow controller: that is done at
/// most every 15 seconds, and when the kernel tells that one of them changed.
class LinuxPowerSource final : public PowerSource {
public:
    /// What was read is good for so long.
    explicit LinuxPowerSource(
        const QByteArray& sysFolder = "/sys", std::chrono::milliseconds period = std::chrono::seconds(15));

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    QList<PowerSourceDescription> descriptions() override;

private:
    struct Supply {
        QByteArray type;
        KeptFile file;
    };

    void findSupplies();
    void hearEvents();
    void readSupplies();

    QByteArray m_folder;
    std::chrono::milliseconds m_period;
    std::optional<NetlinkSocket> m_events; // while there is something to hear of
    std::vector<Supply> m_supplies;
    QList<PowerSourceDescription> m_descriptions;
    QDeadlineTimer m_holds; // until then they are told
    bool m_available = true;
};

} // namespace ambrelle
