// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QList>

#include <optional>

namespace ambrelle {

/// An accessory that is connected to the machine, as one source tells it. Levels are fractions from 0 to 1, none where
/// the source tells none.
struct ConnectedDevice {
    QString name;
    QString address{}; ///< by which two sources know the same device; empty where none is told
    QString minorType{}; ///< the source's words for what it is, such as "Headphones" or "input-mouse"; may be empty
    std::optional<double> level{}; ///< of the main battery
    std::optional<double> left{}; ///< of the parts of earbuds
    std::optional<double> right{};
    std::optional<double> caseLevel{};
    bool charging = false;

    bool operator==(const ConnectedDevice&) const = default;
};

/// Tells which accessories are connected, and how full their batteries are. Available until it turned out otherwise.
class DeviceSource : public Port {
public:
    /// As told last; none before the first answer, empty while unavailable.
    virtual std::optional<QList<ConnectedDevice>> devices() const = 0;

    /// Asks afresh. Before the first call nothing is asked or listened to; after it changes are told without asking,
    /// but not every system tells those of batteries.
    virtual void refresh() = 0;
};

} // namespace ambrelle
