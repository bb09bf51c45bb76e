// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <string_view>

namespace ambrelle {

/// One entry of /sys/class/power_supply. Charges, energies, currents and powers are in the kernel's millionths.
struct PowerSupply {
    QByteArray type; ///< Battery, Mains, USB, UPS, Wireless
    QByteArray status; ///< Charging, Discharging, Full, Not charging, Unknown
    bool isOfDevice = false; ///< belongs to a mouse or the like, and does not feed the machine
    bool present = true;
    bool online = false;
    std::optional<qint64> energy, energyFull, charge, chargeFull, power, current, voltage;
    std::optional<qint64> percent;
    std::optional<qint64> secondsToEmpty, secondsToFull;

    bool operator==(const PowerSupply&) const = default;
};

/// Reads a "uevent" file; `type` is what the neighbouring "type" file says, for kernels that leave it out.
PowerSupply parsePowerSupply(std::string_view text, std::string_view type = {});

/// The batteries of devices among `supplies`, and then as one battery all that feed the machine. Without a mains or USB
/// supply among them the machine counts as fed from outside while its battery does not discharge.
QList<PowerSourceDescription> describe(const QList<PowerSupply>& supplies);

} // namespace ambrelle
