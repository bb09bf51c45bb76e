// SPDX-License-Identifier: MIT

#include "services/BatteryReader.h"

#include <algorithm>

namespace ambrelle {

BatteryReader::BatteryReader(PowerSource& source)
    : m_source(source)
{
}

std::optional<BatteryInfo> BatteryReader::read()
{
    const auto descriptions = m_source.descriptions();
    const auto found = std::find_if(descriptions.begin(), descriptions.end(),
        [](const PowerSourceDescription& each) { return each.type == PowerSourceType::internalBattery; });
    if (found == descriptions.end())
        return std::nullopt;

    BatteryInfo battery;
    if (found->maxCapacity >= 1)
        battery.percent = static_cast<double>(found->currentCapacity) / static_cast<double>(found->maxCapacity);
    battery.isCharging = found->isCharging.value_or(false);
    battery.onAC = found->onAC;
    battery.isCharged = found->isCharged.value_or(false);
    const auto minutes = battery.isCharging ? found->timeToFullCharge : found->timeToEmpty;
    // −1 stands for "still estimating" and 0 for "full": neither is a time to show.
    if (minutes && *minutes >= 1)
        battery.minutesRemaining = minutes;
    return battery;
}

} // namespace ambrelle
