// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/RouteWatch.h"

#include <algorithm>
#include <cstring>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>

namespace ambrelle {

RouteWatch::RouteWatch()
    : m_socket(NETLINK_ROUTE, RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE, [this](std::span<const char> messages) {
        if (messages.empty() || tellsWayOut(messages))
            Q_EMIT wayOutCame();
    })
{
}

bool RouteWatch::tellsWayOut(std::span<const char> messages)
{
    while (messages.size() >= sizeof(nlmsghdr)) {
        nlmsghdr header{};
        std::memcpy(&header, messages.data(), sizeof header);
        if (header.nlmsg_len < sizeof header || header.nlmsg_len > messages.size())
            return false;
        rtmsg route{};
        if (header.nlmsg_type == RTM_NEWROUTE && header.nlmsg_len >= NLMSG_HDRLEN + sizeof route) {
            std::memcpy(&route, messages.data() + NLMSG_HDRLEN, sizeof route);
            if (route.rtm_dst_len == 0 && route.rtm_type == RTN_UNICAST)
                return true;
        }
        messages = messages.subspan(std::min<std::size_t>(NLMSG_ALIGN(header.nlmsg_len), messages.size()));
    }
    return false;
}

} // namespace ambrelle
