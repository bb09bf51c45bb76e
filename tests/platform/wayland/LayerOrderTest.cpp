// SPDX-License-Identifier: MIT

#include "platform/wayland/window/LayerOrder.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace ambrelle {
namespace {

TEST(LayerOrder, WhoStandsRightAlreadyStays)
{
    EXPECT_EQ(rejoining({0, 1, 2}, Joining::above), QList<qsizetype>());
    EXPECT_EQ(rejoining({0, 1, 2}, Joining::below), QList<qsizetype>());
    EXPECT_EQ(rejoining({1, 2, 0}, Joining::above), QList<qsizetype>({1, 2})) << "a scene that came last";
    EXPECT_EQ(rejoining({1, 0, 2}, Joining::below), QList<qsizetype>({0}));
    EXPECT_EQ(rejoining({2, 0, 1}, Joining::below), QList<qsizetype>({1, 0})) << "a panel that came last";
}

TEST(LayerOrder, EveryOrderIsMended)
{
    std::mt19937 random(7);
    for (const Joining joining : {Joining::above, Joining::below, Joining::anew}) {
        for (qsizetype count = 0; count < 9; ++count) {
            QList<qsizetype> standing;
            for (qsizetype place = 0; place < count; ++place)
                standing.append(place);
            const QList<qsizetype> wanted = standing;
            std::ranges::shuffle(standing, random);
            for (const qsizetype moving : rejoining(standing, joining)) {
                standing.removeOne(moving);
                standing.insert(joining == Joining::below ? 0 : standing.size(), moving);
            }
            EXPECT_EQ(standing, wanted);
        }
    }
}

/// On a compositor where only what comes anew lies above the others.
struct Anew final : LayerMember {
    Anew(LayerOrder& place, QList<const LayerMember*>& stack, bool low)
        : order(place)
        , standing(stack)
        , isLow(low)
    {
        come();
    }
    Q_DISABLE_COPY_MOVE(Anew)
    ~Anew() { order.left(*this); }

    ShellLayer layer() const override { return ShellLayer::bottom; }
    const QScreen* screen() const override { return nullptr; }
    bool staysLow() const override { return isLow; }
    bool joinAgain() override
    {
        if (!isHeld)
            come();
        return !isHeld;
    }
    void come()
    {
        ++times;
        standing.removeOne(this);
        standing.append(this);
        order.left(*this);
        order.joined(*this);
    }

    LayerOrder& order;
    QList<const LayerMember*>& standing; ///< the compositor's
    bool isLow;
    bool isHeld = false;
    int times = 0;
};

TEST(LayerOrder, WhoIsHeldIsWaitedFor)
{
    LayerOrder order;
    order.setJoining(Joining::anew);
    QList<const LayerMember*> standing;
    const auto settle = [] {
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents();
    };
    Anew held(order, standing, false);
    Anew other(order, standing, false);
    settle();
    held.isHeld = true;
    Anew scene(order, standing, true);
    settle();
    EXPECT_EQ(standing, QList<const LayerMember*>({&held, &other, &scene}));
    EXPECT_EQ(other.times, 1) << "it is not asked again and again";
    held.isHeld = false;
    held.come();
    settle();
    EXPECT_EQ(standing, QList<const LayerMember*>({&scene, &other, &held}));
}

} // namespace
} // namespace ambrelle
