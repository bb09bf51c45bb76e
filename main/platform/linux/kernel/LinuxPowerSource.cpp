// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxPowerSource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/PowerSupplyParser.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace ambrelle {

namespace {

// sysfs tells nobody that a supply came, and looking takes longer than reading those that are known.
constexpr std::chrono::seconds searchPeriod{10};

QByteArray wordIn(const QByteArray& path)
{
    KeptFile file(path);
    const auto text = file.read().value_or(std::string_view());
    return QByteArray(text.data(), static_cast<qsizetype>(text.size())).trimmed();
}

} // namespace

LinuxPowerSource::LinuxPowerSource(const QByteArray& sysFolder)
    : m_folder(sysFolder + "/class/power_supply")
{
    findSupplies();
}

QString LinuxPowerSource::whyNot() const
{
    return m_available ? QString() : Wording::tr("The kernel does not tell about batteries.");
}

QList<PowerSourceDescription> LinuxPowerSource::descriptions()
{
    if (std::chrono::steady_clock::now() - m_found >= searchPeriod)
        findSupplies();
    QList<PowerSupply> supplies;
    bool isMissing = false;
    for (auto& supply : m_supplies) {
        const auto text = supply.file.read();
        isMissing = isMissing || !text;
        if (text)
            supplies.append(parsePowerSupply(
                *text, std::string_view(supply.type.constData(), static_cast<std::size_t>(supply.type.size()))));
    }
    if (isMissing)
        m_found = {};
    return describe(supplies);
}

void LinuxPowerSource::findSupplies()
{
    m_found = std::chrono::steady_clock::now();
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
}

} // namespace ambrelle
