// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/SystemSources.h"

#include <chrono>
#include <vector>

namespace ambrelle {

/// The batteries and plugs in /sys/class/power_supply.
class LinuxPowerSource final : public PowerSource {
public:
    explicit LinuxPowerSource(const QByteArray& sysFolder = "/sys");

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    QList<PowerSourceDescription> descriptions() override;

private:
    struct Supply {
        QByteArray type;
        KeptFile file;
    };

    void findSupplies();

    QByteArray m_folder;
    std::vector<Supply> m_supplies;
    std::chrono::steady_clock::time_point m_found;
    bool m_available = true;
};

} // namespace ambrelle
