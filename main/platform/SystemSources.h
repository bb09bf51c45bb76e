// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QList>

#include <array>
#include <functional>
#include <optional>

namespace ambrelle {

/// What one logical processor did since the machine booted, in ticks of any one length. While a processor runs, its
/// counters never go back.
struct ProcessorTicks {
    quint64 user = 0;
    quint64 system = 0;
    quint64 idle = 0;
    quint64 nice = 0;

    bool operator==(const ProcessorTicks&) const = default;
};

class ProcessorSource : public Port {
public:
    /// One entry per running processor, in the kernel's order; nothing when the kernel does not answer.
    virtual std::optional<QList<ProcessorTicks>> ticks() = 0;
    /// Over 1, 5 and 15 minutes.
    virtual std::optional<std::array<double, 3>> loadAverages() = 0;
    virtual double uptime() = 0; ///< seconds since boot, sleep included; 0 when unknown
};

/// What takes up memory that cannot simply be given away, in bytes; nothing counts twice. Files kept in memory are no
/// part of it, nor what programs allow to be dropped at any time, as far as the system tells that apart.
struct MemoryUse {
    quint64 programs = 0; ///< of programs, without a file behind it
    quint64 wired = 0; ///< the kernel's own, and what is locked in its place
    quint64 compressed = 0; ///< taken by other memory in compressed form

    bool operator==(const MemoryUse&) const = default;
};

class MemorySource : public Port {
public:
    virtual quint64 physicalMemory() = 0; ///< bytes, 0 when unknown
    virtual std::optional<MemoryUse> use() = 0; ///< none when the kernel does not answer
};

/// A mounted volume; what is absent could not be learnt.
struct Volume {
    std::optional<QString> name;
    QString path; ///< where it is mounted
    std::optional<bool> browsable; ///< a place where a user keeps files
    std::optional<qint64> total; ///< bytes
    std::optional<qint64> available; ///< bytes
    std::optional<qint64> availableForImportantUsage; ///< bytes, with what the system would clear away for it
    std::optional<bool> isRoot;

    bool operator==(const Volume&) const = default;
};

class VolumeSource : public Port {
public:
    /// Never waits for a network or a slow device: such a volume joins the list once it answered. changed() tells that,
    /// and volumes mounted or unmounted.
    virtual QList<Volume> volumes() = 0;
};

enum class PowerSourceType {
    internalBattery,
    other, ///< an uninterruptible supply, the battery of a mouse
};

struct PowerSourceDescription {
    PowerSourceType type = PowerSourceType::other;
    qint64 currentCapacity = 0; ///< in the unit of maxCapacity
    qint64 maxCapacity = 0;
    std::optional<bool> isCharging;
    bool onAC = false;
    std::optional<bool> isCharged;
    std::optional<int> timeToFullCharge; ///< minutes; −1 while it is still being estimated
    std::optional<int> timeToEmpty; ///< minutes; −1 while it is still being estimated

    bool operator==(const PowerSourceDescription&) const = default;
};

class PowerSource : public Port {
public:
    /// Empty on a machine without batteries.
    virtual QList<PowerSourceDescription> descriptions() = 0;
};

/// What went over one network interface since it came up.
struct InterfaceCounters {
    QString name;
    quint64 received = 0; ///< bytes
    quint64 sent = 0; ///< bytes
    bool counted = false; ///< Ethernet, Wi-Fi or mobile: the way out, not a loopback, tunnel or bridge over it

    bool operator==(const InterfaceCounters&) const = default;
};

class NetworkSource : public Port {
public:
    virtual std::optional<QList<InterfaceCounters>> interfaces() = 0;
};

struct ProcessRow {
    qint64 id = 0;
    QString name;
    double cpu = 0; ///< per cent of one processor
    double memory = 0; ///< per cent of physical memory

    bool operator==(const ProcessRow&) const = default;
};

class ProcessSource : public Port {
public:
    using Completion = std::function<void(QList<ProcessRow>)>;

    /// Gives up to `count` processes, the busiest first, an empty list on failure. `completion` is called once, on the
    /// thread of the caller, perhaps before this returns; never after the source is gone.
    virtual void top(int count, Completion completion) = 0;
};

/// Where a system monitor reads. The sources outlive it.
struct SystemSources {
    ProcessorSource& processor;
    MemorySource& memory;
    VolumeSource& volumes;
    PowerSource& power;
    NetworkSource& network;
    ProcessSource& processes;
};

} // namespace ambrelle
