// SPDX-License-Identifier: MIT

#pragma once

class QHostAddress;

namespace ambrelle {

/// Whether the address is one of the open internet: not of this machine, its link, a private network, a group of hosts,
/// or a range set aside; of an address that contains one of the older protocol, both count.
bool isPublicAddress(const QHostAddress& address);

} // namespace ambrelle
