// SPDX-License-Identifier: MIT

#include "services/DevicesService.h"

#include "foundation/Wording.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto scanPeriod = 60s;

/// The devices told so far, by what two sources may know the same one by.
struct KnownDevices {
    QList<ConnectedDevice> list;
    QHash<QString, qsizetype> byName;
    QHash<QString, qsizetype> byAddress; // in capitals

    /// The place of the same device; none: it is new.
    std::optional<qsizetype> place(const ConnectedDevice& device) const
    {
        const qsizetype none = list.size();
        const qsizetype found =
            std::min(byName.value(device.name, none), byAddress.value(device.address.toUpper(), none));
        return found < none ? std::optional(found) : std::nullopt;
    }
    void note(qsizetype place)
    {
        const ConnectedDevice& device = list.at(place);
        if (!byName.contains(device.name))
            byName.insert(device.name, place);
        if (const QString address = device.address.toUpper(); !address.isEmpty() && !byAddress.contains(address))
            byAddress.insert(address, place);
    }
};

template <typename T> void fill(std::optional<T>& gap, const std::optional<T>& value)
{
    if (!gap)
        gap = value;
}

void complete(ConnectedDevice& device, const ConnectedDevice& other)
{
    if (device.address.isEmpty())
        device.address = other.address;
    if (device.minorType.isEmpty())
        device.minorType = other.minorType;
    fill(device.level, other.level);
    fill(device.left, other.left);
    fill(device.right, other.right);
    fill(device.caseLevel, other.caseLevel);
    device.charging = device.charging || other.charging;
}

QString partsOf(const ConnectedDevice& device)
{
    const std::pair<QString, std::optional<double>> parts[] = {{Wording::tr("L %1"), device.left},
        {Wording::tr("R %1"), device.right}, {Wording::tr("Case %1"), device.caseLevel}};
    QStringList levels;
    for (const auto& [text, level] : parts) {
        if (level)
            levels.append(text.arg(std::lround(*level * 100)));
    }
    return levels.join(u" · "_s);
}

} // namespace

QList<DeviceRow> deviceRows(const QList<ConnectedDevice>& told)
{
    KnownDevices known;
    for (const ConnectedDevice& device : told) {
        const std::optional<qsizetype> place = known.place(device);
        if (place)
            complete(known.list[*place], device);
        else
            known.list.append(device);
        known.note(place.value_or(known.list.size() - 1));
    }
    QList<DeviceRow> rows;
    for (const ConnectedDevice& device : std::as_const(known.list))
        rows.append({device.name, device.name, kindOf(device.name, device.minorType), device.level, device.charging,
            partsOf(device)});
    std::ranges::stable_sort(rows, [](const DeviceRow& one, const DeviceRow& other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return rows;
}

DevicesService::DevicesService(QList<DeviceSource*> sources, Clock& clock)
    : m_sources(std::move(sources))
    , m_clock(clock)
{
}

void DevicesService::start()
{
    if (m_preview || std::exchange(m_started, true))
        return;
    for (const DeviceSource* source : std::as_const(m_sources))
        connect(source, &DeviceSource::changed, this, &DevicesService::look);
    look();
    refresh();
}

void DevicesService::refresh()
{
    if (m_preview)
        return;
    for (DeviceSource* source : std::as_const(m_sources))
        source->refresh();
}

void DevicesService::loadPreviewData()
{
    m_preview = true;
    m_timer.reset();
    const auto row = [](const QString& name, DeviceKind kind, std::optional<double> battery) {
        return DeviceRow{name, name, kind, battery, false, {}};
    };
    DeviceRow earbuds = row(Wording::tr("Earbuds"), DeviceKind::earbuds, 0.82);
    earbuds.detail = partsOf({.left = 0.82, .right = 0.85, .caseLevel = 0.6});
    DeviceRow mouse = row(Wording::tr("Mouse"), DeviceKind::mouse, 0.12);
    mouse.charging = true;
    publish({{earbuds, row(Wording::tr("Gamepad"), DeviceKind::controller, {}),
                 row(Wording::tr("Keyboard"), DeviceKind::keyboard, 0.47), mouse},
        false, {}});
}

void DevicesService::look()
{
    if (m_preview)
        return;
    QList<ConnectedDevice> told;
    Findings findings{.searching = false};
    for (const DeviceSource* source : std::as_const(m_sources)) {
        if (const auto devices = source->devices())
            told.append(*devices);
        else
            findings.searching = true;
    }
    findings.devices = deviceRows(told);
    findings.whyNot = m_sources.isEmpty() ? QString() : m_sources.first()->whyNot();
    // A battery may run down without a signal, while a device that comes or goes always gives one.
    if (findings.devices.isEmpty())
        m_timer.reset();
    else if (!m_timer)
        m_timer = m_clock.every(scanPeriod, [this] { refresh(); });
    publish(findings);
}

void DevicesService::publish(const Findings& findings)
{
    if (findings == m_found)
        return;
    m_found = findings;
    Q_EMIT changed();
}

} // namespace ambrelle
