// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

namespace ambrelle {

struct BatteryInfo {
    double percent = 0; ///< a fraction, 0 to 1
    bool isCharging = false;
    bool onAC = false;
    bool isCharged = false;
    std::optional<int> minutesRemaining; ///< to full while charging, else to empty; none when unknown

    bool operator==(const BatteryInfo&) const = default;
};

class BatteryReader {
public:
    explicit BatteryReader(PowerSource& source);

    /// The first internal battery; none on a machine without one.
    std::optional<BatteryInfo> read();

private:
    PowerSource& m_source;
};

} // namespace ambrelle
