// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>
#include <QList>

#include <utility>

namespace ambrelle {

/// Addresses of a network: one of them, and how many bits they have in common.
using Subnet = std::pair<QHostAddress, int>;

/// Whether the address is one of the open internet: not of this machine, its link, a private network, a group of hosts,
/// one of its `own` subnets, or a range set aside. Where an address stands for one of the older protocol, mapped or
/// translated by the network, that one counts alone; those of tunnels are none.
bool isPublicAddress(const QHostAddress& address, const QList<Subnet>& own);
/// With the subnets that this machine is in now: a neighbour may have an address of the open internet, too.
bool isPublicAddress(const QHostAddress& address);

/// Those of the machine's interfaces; of one whose neighbours are not known, the machine itself.
QList<Subnet> ownSubnets();

} // namespace ambrelle
