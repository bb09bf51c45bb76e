// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>
#include <string_view>

namespace ambrelle {

struct InterfaceLine {
    std::string_view name;
    quint64 received = 0; ///< bytes
    quint64 sent = 0; ///< bytes
};

/// Calls `found` for every interface in the text of /proc/net/dev; headings and damaged lines are passed over.
void parseInterfaces(std::string_view text, const std::function<void(const InterfaceLine&)>& found);

/// Whether the kernel or udev would name an Ethernet or Wi-Fi interface so.
bool isNamedLikeNetworkCard(std::string_view name);

} // namespace ambrelle
