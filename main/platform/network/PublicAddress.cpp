// SPDX-License-Identifier: MIT

#include "platform/network/PublicAddress.h"

#include <QNetworkInterface>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

bool isWithin(const QHostAddress& address, std::initializer_list<QLatin1StringView> subnets)
{
    return std::ranges::any_of(subnets,
        [&address](QLatin1StringView subnet) { return address.isInSubnet(QHostAddress::parseSubnet(subnet)); });
}

// What RFC 6890 and its registry set aside, with the groups and what is reserved.
bool isPublic4(const QHostAddress& address)
{
    return !isWithin(address,
        {"0.0.0.0/8"_L1, "10.0.0.0/8"_L1, "100.64.0.0/10"_L1, "127.0.0.0/8"_L1, "169.254.0.0/16"_L1, "172.16.0.0/12"_L1,
            "192.0.0.0/24"_L1, "192.0.2.0/24"_L1, "192.88.99.0/24"_L1, "192.168.0.0/16"_L1, "198.18.0.0/15"_L1,
            "198.51.100.0/24"_L1, "203.0.113.0/24"_L1, "224.0.0.0/3"_L1});
}

QHostAddress lastFourBytes(const QHostAddress& address)
{
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    quint32 value = 0;
    for (int index = 12; index < 16; ++index)
        value = value << 8 | bytes[index];
    return QHostAddress(value);
}

bool isAmong(const QHostAddress& address, const QList<Subnet>& subnets)
{
    return std::ranges::any_of(subnets, [&address](const Subnet& subnet) { return address.isInSubnet(subnet); });
}

bool isPublic6(const QHostAddress& address, const QList<Subnet>& own)
{
    if (isWithin(address, {"64:ff9b::/96"_L1})) // translated by the network
        return isPublic4(lastFourBytes(address)) && !isAmong(lastFourBytes(address), own);
    return isWithin(address, {"2000::/3"_L1}) && !isAmong(address, own)
        && !isWithin(address, {"2001::/23"_L1, "2001:db8::/32"_L1, "2002::/16"_L1, "3fff::/20"_L1});
}

} // namespace

bool isPublicAddress(const QHostAddress& address, const QList<Subnet>& own)
{
    bool isOlder = false;
    const quint32 older = address.toIPv4Address(&isOlder);
    if (isOlder)
        return isPublic4(QHostAddress(older)) && !isAmong(QHostAddress(older), own);
    return address.protocol() == QAbstractSocket::IPv6Protocol && isPublic6(address, own);
}

bool isPublicAddress(const QHostAddress& address)
{
    return isPublicAddress(address, ownSubnets());
}

QList<Subnet> ownSubnets()
{
    QList<Subnet> subnets;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            const bool isOlder = entry.ip().protocol() == QAbstractSocket::IPv4Protocol;
            // A length of none, as some tunnels have it, is all the world.
            const int length = entry.prefixLength() > 0 ? entry.prefixLength() : (isOlder ? 32 : 128);
            subnets.append({entry.ip(), length});
        }
    }
    return subnets;
}

} // namespace ambrelle
