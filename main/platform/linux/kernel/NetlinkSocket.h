// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>

#include <functional>
#include <optional>
#include <span>

namespace ambrelle {

/// Hears what the kernel tells everybody who listens. Where it may not be listened to, nothing is heard.
class NetlinkSocket {
public:
    /// Hears the messages of one reading; none: some were lost.
    using Heard = std::function<void(std::span<const char> messages)>;

    /// `protocol` and `groups` as in netlink(7). Needs this thread's event loop.
    NetlinkSocket(int protocol, unsigned groups, Heard heard);
    ~NetlinkSocket();
    NetlinkSocket(const NetlinkSocket&) = delete;
    NetlinkSocket& operator=(const NetlinkSocket&) = delete;

private:
    void read() const;

    Heard m_heard;
    int m_socket = -1;
    std::optional<QSocketNotifier> m_notifier;
};

} // namespace ambrelle
