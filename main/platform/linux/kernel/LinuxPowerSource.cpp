// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxPowerSource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/PowerSupplyParser.h"

#include <QDir>
#include <QFile>

#include <algorithm>

#include <linux/netlink.h>

namespace ambrelle {

namespace {

QByteArray wordIn(const QByteArray& path)
{
    KeptFile file(path);
    const auto text = file.read().value_or(std::string_view());
    return QByteArray(text.data(), static_cast<qsizetype>(text.size())).trimmed();
}

} // namespace

LinuxPowerSource::LinuxPowerSource(const QByteArray& sysFolder, std::chrono::milliseconds period)
    : m_folder(sysFolder + "/class/power_supply")
    , m_period(period)
{
    findSupplies();
}

QString LinuxPowerSource::whyNot() const
{
    return m_available ? QString() : Wording::tr("The kernel does not tell about batteries.");
}

QList<PowerSourceDescription> LinuxPowerSource::descriptions()
{
    if (m_holds.hasExpired()) {
        m_holds = QDeadlineTimer(m_period);
        findSupplies();
        readSupplies();
    }
    return m_descriptions;
}

void LinuxPowerSource::hearEvents()
{
    constexpr unsigned fromKernel = 1;
    m_events.emplace(NETLINK_KOBJECT_UEVENT, fromKernel, [this](std::span<const char> message) {
        constexpr std::string_view ours("\0SUBSYSTEM=power_supply", 23);
        if (message.empty() || std::string_view(message.data(), message.size()).find(ours) != std::string_view::npos)
            m_holds = QDeadlineTimer();
    });
}

void LinuxPowerSource::readSupplies()
{
    QList<PowerSupply> supplies;
    for (auto& supply : m_supplies) {
        if (const auto text = supply.file.read())
            supplies.append(parsePowerSupply(
                *text, std::string_view(supply.type.constData(), static_cast<std::size_t>(supply.type.size()))));
    }
    m_descriptions = describe(supplies);
}

void LinuxPowerSource::findSupplies()
{
    const QDir folder(QFile::decodeName(m_folder));
    m_available = folder.exists();
    QList<QByteArray> paths;
    const auto names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const auto& name : names) {
        const auto path = m_folder + '/' + QFile::encodeName(name) + '/';
        // Reading the battery of a mouse asks the mouse, over the air.
        if (wordIn(path + "scope") != "Device")
            paths.append(path);
    }
    const bool isSame = std::equal(m_supplies.begin(), m_supplies.end(), paths.begin(), paths.end(),
        [](const Supply& supply, const QByteArray& path) { return supply.file.path() == path + "uevent"; });
    if (isSame)
        return;
    m_supplies.clear();
    for (const auto& path : paths)
        m_supplies.push_back({wordIn(path + "type"), KeptFile(path + "uevent")});
    if (m_supplies.empty())
        m_events.reset();
    else if (!m_events)
        hearEvents();
}

} // namespace ambrelle
