// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/PowerSupplyParser.h"

#include "foundation/TextFields.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

using Figure = std::optional<qint64> PowerSupply::*;
struct SupplyLine {
    std::string_view name;
    Figure field;
};

constexpr std::string_view prefix = "POWER_SUPPLY_";
constexpr std::array supplyLines{
    SupplyLine{"ENERGY_NOW", &PowerSupply::energy},
    SupplyLine{"ENERGY_FULL", &PowerSupply::energyFull},
    SupplyLine{"CHARGE_NOW", &PowerSupply::charge},
    SupplyLine{"CHARGE_FULL", &PowerSupply::chargeFull},
    SupplyLine{"POWER_NOW", &PowerSupply::power},
    SupplyLine{"CURRENT_NOW", &PowerSupply::current},
    SupplyLine{"VOLTAGE_NOW", &PowerSupply::voltage},
    SupplyLine{"CAPACITY", &PowerSupply::percent},
    SupplyLine{"TIME_TO_EMPTY_NOW", &PowerSupply::secondsToEmpty},
    SupplyLine{"TIME_TO_FULL_NOW", &PowerSupply::secondsToFull},
};

constexpr qint64 mostMinutes = 7 * 24 * 60; // beyond a week the rate was noise

QByteArray bytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
}

void readLine(PowerSupply& supply, std::string_view name, std::string_view value)
{
    if (name == "TYPE")
        supply.type = bytes(value);
    else if (name == "STATUS")
        supply.status = bytes(value);
    else if (name == "SCOPE")
        supply.isOfDevice = value == "Device";
    else if (name == "PRESENT")
        supply.present = value != "0";
    else if (name == "ONLINE")
        supply.online = value != "0";
    else if (const auto* known = std::find_if(
                 supplyLines.begin(), supplyLines.end(), [name](const SupplyLine& each) { return each.name == name; });
             known != supplyLines.end())
        supply.*known->field = toNumber<qint64>(value);
}

struct Gauge {
    qint64 now = 0;
    qint64 full = 0;
    std::optional<double> perHour; // in the unit of now, always positive
};

/// The battery in millionths of watt hours, else of ampere hours, else in per cent: what it has both figures of.
Gauge gaugeOf(const PowerSupply& supply)
{
    const double volts = static_cast<double>(supply.voltage.value_or(0)) / 1e6;
    const auto rate = [volts](std::optional<qint64> own, std::optional<qint64> other, double factor) {
        // Some drivers count what flows out as negative.
        if (own)
            return std::optional(std::abs(static_cast<double>(*own)));
        return other && volts > 0 ? std::optional(std::abs(static_cast<double>(*other)) * factor) : std::nullopt;
    };
    if (supply.energy && supply.energyFull.value_or(0) > 0)
        return {*supply.energy, *supply.energyFull, rate(supply.power, supply.current, volts)};
    if (supply.charge && supply.chargeFull.value_or(0) > 0)
        return {*supply.charge, *supply.chargeFull, rate(supply.current, supply.power, volts > 0 ? 1 / volts : 0)};
    return {supply.percent.value_or(0), 100, std::nullopt};
}

std::optional<int> minutesFor(double amount, std::optional<double> perHour, std::optional<qint64> seconds)
{
    double minutes = seconds ? static_cast<double>(*seconds) / 60 : -1;
    if (!seconds && perHour && *perHour >= 1)
        minutes = std::max(amount, 0.0) / *perHour * 60;
    return minutes >= 0 && minutes <= static_cast<double>(mostMinutes) ? static_cast<int>(std::lround(minutes)) : -1;
}

bool feedsMachine(const PowerSupply& supply)
{
    return !supply.isOfDevice && supply.type != "Battery" && supply.type != "UPS";
}

/// What charges and discharges at once comes to what predominates.
QByteArray jointStatus(const QList<PowerSupply>& batteries)
{
    const auto count = [&batteries](const char* status) {
        return std::ranges::count_if(batteries, [status](const PowerSupply& each) { return each.status == status; });
    };
    if (count("Full") == batteries.size())
        return "Full";
    if (count("Discharging") > 0)
        return "Discharging";
    return count("Charging") > 0 ? "Charging" : "Unknown";
}

/// Several batteries as the one that they are to the user. Where all tell their energy, or enough to know it, the large
/// ones weigh more, and their powers add up to the time that is left.
PowerSupply united(const QList<PowerSupply>& batteries)
{
    if (batteries.size() == 1)
        return batteries.first();
    PowerSupply whole;
    whole.type = "Battery";
    whole.status = jointStatus(batteries);
    double now = 0;
    double full = 0;
    double power = 0;
    double percent = 0;
    bool tellEnergy = true;
    for (const auto& each : batteries) {
        const double volts = static_cast<double>(each.voltage.value_or(0)) / 1e6;
        const bool hasEnergy = each.energy && each.energyFull.value_or(0) > 0;
        const auto gauge = gaugeOf(each);
        const bool isCharge = !hasEnergy && each.charge && each.chargeFull.value_or(0) > 0;
        tellEnergy = tellEnergy && (hasEnergy || (isCharge && volts > 0));
        const double unit = isCharge ? volts : 1;
        const double limit = static_cast<double>(gauge.full);
        const double held = std::clamp(static_cast<double>(gauge.now), 0.0, limit);
        now += held * unit;
        full += limit * unit;
        percent += 100 * held / limit;
        if (each.status == whole.status)
            power += gauge.perHour.value_or(0) * unit;
    }
    constexpr double most = 1e15; // millionths: no machine holds as much
    if (tellEnergy && full >= 1 && full < most && power < most) {
        whole.energy = std::llround(now);
        whole.energyFull = std::llround(full);
        whole.power = std::llround(power);
    } else {
        whole.percent = std::llround(percent / static_cast<double>(batteries.size()));
    }
    return whole;
}

/// Fed from outside, as far as the battery tells.
PowerSourceDescription describeOne(const PowerSupply& supply, PowerSourceType type)
{
    const auto gauge = gaugeOf(supply);
    PowerSourceDescription description;
    description.type = type;
    // A worn battery may hold more than its own estimate of full.
    description.currentCapacity = std::clamp<qint64>(gauge.now, 0, gauge.full);
    description.maxCapacity = gauge.full;
    description.isCharging = supply.status == "Charging";
    description.isCharged = supply.status == "Full";
    description.onAC = supply.status != "Discharging";
    description.timeToFullCharge = minutesFor(
        static_cast<double>(gauge.full) - static_cast<double>(gauge.now), gauge.perHour, supply.secondsToFull);
    description.timeToEmpty = minutesFor(static_cast<double>(gauge.now), gauge.perHour, supply.secondsToEmpty);
    return description;
}

} // namespace

PowerSupply parsePowerSupply(std::string_view text, std::string_view type)
{
    PowerSupply supply;
    supply.type = bytes(type);
    while (!text.empty()) {
        auto line = takeLine(text);
        if (!line.starts_with(prefix))
            continue;
        line.remove_prefix(prefix.size());
        const auto name = takeUntil(line, '=');
        readLine(supply, name, line);
    }
    return supply;
}

QList<PowerSourceDescription> describe(const QList<PowerSupply>& supplies)
{
    const bool hasMains = std::any_of(supplies.begin(), supplies.end(), feedsMachine);
    const bool online = std::any_of(
        supplies.begin(), supplies.end(), [](const PowerSupply& each) { return feedsMachine(each) && each.online; });

    QList<PowerSourceDescription> descriptions;
    QList<PowerSupply> internal;
    for (const auto& supply : supplies) {
        if (supply.type != "Battery" || !supply.present)
            continue;
        if (supply.isOfDevice)
            descriptions.append(describeOne(supply, PowerSourceType::other));
        else
            internal.append(supply);
    }
    if (!internal.isEmpty())
        descriptions.append(describeOne(united(internal), PowerSourceType::internalBattery));
    for (auto& description : descriptions)
        description.onAC = hasMains ? online : description.onAC;
    return descriptions;
}

} // namespace ambrelle
