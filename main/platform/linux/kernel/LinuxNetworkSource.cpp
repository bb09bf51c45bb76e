// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxNetworkSource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/InterfaceParser.h"

#include <QFile>

#include <algorithm>

#include <unistd.h>

namespace ambrelle {

LinuxNetworkSource::LinuxNetworkSource(const QByteArray& procFolder, const QByteArray& sysFolder)
    : m_file(procFolder + "/net/dev")
    , m_interfaceFolder(sysFolder + "/class/net/")
{
    m_available = m_file.read().has_value();
}

QString LinuxNetworkSource::whyNot() const
{
    return m_available ? QString() : Wording::tr("The kernel does not tell about network interfaces.");
}

std::optional<QList<InterfaceCounters>> LinuxNetworkSource::interfaces()
{
    const auto text = m_file.read();
    m_available = text.has_value();
    if (!text)
        return std::nullopt;

    qsizetype count = 0;
    bool isSameSet = true;
    parseInterfaces(*text, [&](const InterfaceLine& line) {
        const QLatin1StringView name(line.name.data(), static_cast<qsizetype>(line.name.size()));
        if (count == m_interfaces.size())
            m_interfaces.append(InterfaceCounters());
        auto& interface = m_interfaces[count++];
        if (interface.name != name) {
            interface.name = name;
            isSameSet = false;
        }
        interface.received = line.received;
        interface.sent = line.sent;
    });
    isSameSet = isSameSet && count == m_interfaces.size();
    m_interfaces.resize(count);
    if (!isSameSet)
        decideWhatCounts();
    return m_interfaces;
}

bool LinuxNetworkSource::isCard(const QByteArray& name) const
{
    const auto folder = m_interfaceFolder + name;
    const auto has = [&folder](const char* entry) { return ::access((folder + entry).constData(), F_OK) == 0; };
    KeptFile typeFile(folder + "/type");
    KeptFile eventFile(folder + "/uevent");
    // Type 1 is Ethernet, and Wi-Fi poses as it. Mobile broadband without Ethernet addresses has several types.
    const bool isEthernet = typeFile.read().value_or(std::string_view()).starts_with("1\n");
    const bool isMobile =
        eventFile.read().value_or(std::string_view()).find("DEVTYPE=wwan\n") != std::string_view::npos;
    return (isEthernet || isMobile) && has("/device") && !has("/bridge") && !has("/bonding") && !has("/tun_flags");
}

void LinuxNetworkSource::decideWhatCounts()
{
    for (auto& interface : m_interfaces)
        interface.counted = isCard(QFile::encodeName(interface.name));
    if (std::any_of(m_interfaces.begin(), m_interfaces.end(), [](const auto& each) { return each.counted; }))
        return;
    for (auto& interface : m_interfaces) {
        const auto name = interface.name.toLatin1();
        interface.counted =
            isNamedLikeNetworkCard(std::string_view(name.constData(), static_cast<std::size_t>(name.size())));
    }
}

} // namespace ambrelle
