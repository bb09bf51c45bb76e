// SPDX-License-Identifier: MIT

#include "services/DevicesService.h"

#include "foundation/Wording.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto scanPeriod = 60s;

bool isSame(const ConnectedDevice& one, const ConnectedDevice& other)
{
    return one.name == other.name
        || (!one.address.isEmpty() && one.address.compare(other.address, Qt::CaseInsensitive) == 0);
}

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
    QList<ConnectedDevice> devices;
    for (const ConnectedDevice& device : told) {
        const auto known =
            std::ranges::find_if(devices, [&device](const ConnectedDevice& each) { return isSame(each, device); });
        if (known == devices.end())
            devices.append(device);
        else
            complete(*known, device);
    }
    QList<DeviceRow> rows;
    for (const ConnectedDevice& device : std::as_const(devices))
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
