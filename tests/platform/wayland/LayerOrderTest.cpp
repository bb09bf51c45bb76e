// SPDX-License-Identifier: MIT

#include "platform/wayland/window/LayerOrder.h"

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

} // namespace
} // namespace ambrelle
