// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/NetlinkSocket.h"

#include <array>
#include <cerrno>
#include <utility>

#include <linux/netlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ambrelle {

NetlinkSocket::NetlinkSocket(int protocol, unsigned groups, Heard heard)
    : m_heard(std::move(heard))
    , m_socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, protocol))
{
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = groups;
    if (m_socket < 0 || ::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return;
    m_notifier.emplace(m_socket, QSocketNotifier::Read);
    QObject::connect(&*m_notifier, &QSocketNotifier::activated, [this] { read(); });
}

NetlinkSocket::~NetlinkSocket()
{
    m_notifier.reset();
    if (m_socket >= 0)
        ::close(m_socket);
}

void NetlinkSocket::read() const
{
    alignas(nlmsghdr) std::array<char, 32768> buffer;
    constexpr int mostReadings = 64; // then others have their turn
    for (int reading = 0; reading < mostReadings; ++reading) {
        sockaddr_nl sender{};
        socklen_t size = sizeof sender;
        const auto length =
            ::recvfrom(m_socket, buffer.data(), buffer.size(), 0, reinterpret_cast<sockaddr*>(&sender), &size);
        if (length < 0 && errno == ENOBUFS)
            m_heard({});
        else if (length <= 0)
            return;
        else if (sender.nl_pid == 0) // the kernel, and no other program
            m_heard({buffer.data(), static_cast<std::size_t>(length)});
    }
}

} // namespace ambrelle
