// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/RouteWatch.h"
#include "support/WaitUntil.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sched.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QByteArray routeMessage(quint16 type, uchar destinationBits, uchar routeType)
{
    struct {
        nlmsghdr header;
        rtmsg route;
    } message{};
    message.header.nlmsg_len = sizeof message;
    message.header.nlmsg_type = type;
    message.route.rtm_dst_len = destinationBits;
    message.route.rtm_type = routeType;
    return QByteArray(reinterpret_cast<const char*>(&message), sizeof message);
}

bool tells(const QByteArray& messages)
{
    return RouteWatch::tellsWayOut({messages.constData(), static_cast<std::size_t>(messages.size())});
}

TEST(RouteWatchTest, OnlyANewRouteToEverywhereIsAWayOut)
{
    const QByteArray wayOut = routeMessage(RTM_NEWROUTE, 0, RTN_UNICAST);
    const QByteArray neighbours = routeMessage(RTM_NEWROUTE, 24, RTN_UNICAST);
    EXPECT_TRUE(tells(wayOut));
    EXPECT_TRUE(tells(neighbours + wayOut));
    EXPECT_FALSE(tells(neighbours));
    EXPECT_FALSE(tells(routeMessage(RTM_DELROUTE, 0, RTN_UNICAST)));
    EXPECT_FALSE(tells(routeMessage(RTM_NEWROUTE, 0, RTN_UNREACHABLE)));
    for (qsizetype length = 0; length < wayOut.size(); ++length)
        EXPECT_FALSE(tells(wayOut.first(length))) << length;
    EXPECT_FALSE(tells(QByteArray(64, '\0') + wayOut)) << "a message without a length has no next one";
}

/// While it lives, this thread and the programs it starts have networks of their own.
class NetworksOfOurOwn {
public:
    NetworksOfOurOwn()
        : m_before(::open("/proc/self/ns/net", O_RDONLY | O_CLOEXEC))
        , m_entered(::unshare(CLONE_NEWNET) == 0)
    {
    }
    ~NetworksOfOurOwn()
    {
        EXPECT_EQ(m_entered ? ::setns(m_before, CLONE_NEWNET) : 0, 0);
        ::close(m_before);
    }
    NetworksOfOurOwn(const NetworksOfOurOwn&) = delete;
    NetworksOfOurOwn& operator=(const NetworksOfOurOwn&) = delete;

    bool change(const QString& arguments) const
    {
        return m_entered && QProcess::execute(u"ip"_s, arguments.split(u' ')) == 0;
    }

private:
    int m_before;
    bool m_entered;
};

TEST(RouteWatchTest, TheKernelTellsOfAWayOut)
{
    const NetworksOfOurOwn networks;
    if (!networks.change(u"link set lo up"_s))
        GTEST_SKIP() << "needs the right to make networks, and the program ip";
    RouteWatch watch;
    int told = 0;
    QObject::connect(&watch, &RouteWatch::wayOutCame, [&told] { ++told; });
    ASSERT_TRUE(networks.change(u"route add 192.0.2.0/24 dev lo"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    ASSERT_TRUE(networks.change(u"route add default dev lo"_s));
    EXPECT_TRUE(waitUntil([&told] { return told == 1; }));
}

} // namespace
} // namespace ambrelle
