// SPDX-License-Identifier: MIT

#include "platform/x11/window/StackPlan.h"
#include "platform/x11/window/RestackBudget.h"

#include <algorithm>
#include <map>
#include <string>

#include <gtest/gtest.h>

namespace ambrelle::test {

using Kind = StackedWindow::Kind;

namespace {

/// A letter is a window; several of one kind have different cases.
const std::map<char, Kind> kinds{{'d', Kind::desktop}, {'s', Kind::scene}, {'l', Kind::lowPanel}, {'L', Kind::lowPanel},
    {'w', Kind::window}, {'W', Kind::window}, {'f', Kind::fullScreen}, {'b', Kind::backdrop}, {'h', Kind::highPanel},
    {'H', Kind::highPanel}, {'o', Kind::other}};

std::vector<StackMove> movesOf(const std::string& order, char risen = 0)
{
    std::vector<StackedWindow> windows;
    for (const char letter : order)
        windows.push_back({static_cast<xcb_window_t>(letter), kinds.at(letter)});
    return stackMoves(windows, static_cast<xcb_window_t>(risen));
}

/// What an X server makes of it.
std::string settled(std::string order, char risen = 0)
{
    for (const StackMove& move : movesOf(order, risen)) {
        order.erase(order.find(static_cast<char>(move.window)), 1);
        const std::size_t sibling = order.find(static_cast<char>(move.sibling));
        order.insert(order.begin() + static_cast<std::ptrdiff_t>(sibling + (move.above ? 1 : 0)),
            static_cast<char>(move.window));
    }
    return order;
}

TEST(StackPlanTest, PutsPanelsBetweenDesktopAndWindowsOrAboveThem)
{
    struct Case {
        const char* what;
        const char* before;
        const char* after;
    };
    const Case cases[] = {
        {"a panel that has just appeared", "wWl", "lwW"},
        {"several keep their order", "wlLhWH", "lLwWhH"},
        {"a desktop that opens later", "lLdw", "dlLw"},
        {"a desktop over windows is one of them", "wdl", "lwd"},
        {"a new window over a pinned panel", "lwhHW", "lwWhH"},
        {"menus and lockers stay above", "lwho", "lwho"},
        {"a panel goes no higher than it must", "lhwo", "lwho"},
        {"a film is above pinned panels", "lwhf", "lwhf"},
        {"a panel is pinned during the film", "lwfh", "lwhf"},
        {"the film alone", "lfh", "lhf"},
        {"a dialog over the film", "lfWh", "lfWh"},
        {"widgets are arranged", "lwhHb", "lwbhH"},
        {"a panel is pinned below another one", "hlw", "lwh"},
        {"below several", "hlLw", "lLwh"},
        {"no windows", "olhd", "odlh"},
        {"no windows and no desktop", "ohl", "olh"},
        {"no panels", "wdWfo", "wdWfo"},
        {"a scene that has just appeared", "dlLws", "dslLw"},
        {"a scene without a desktop", "lLwhs", "slLwh"},
        {"a scene and no panels", "dws", "dsw"},
        {"a desktop that opens after the scene", "sldw", "dslw"},
        {"a scene over a panel that has just appeared", "wsl", "slw"},
        {"a scene below pinned panels alone", "hs", "sh"},
    };
    for (const Case& each : cases) {
        const std::string after = settled(each.before);
        EXPECT_EQ(after, each.after) << each.what;
        EXPECT_TRUE(movesOf(after).empty()) << each.what << ": would move for ever";
    }
}

TEST(StackPlanTest, RaisesAPanelToTheTopOfItsKind)
{
    struct Case {
        const char* what;
        const char* before;
        char risen;
        const char* after;
    };
    const Case cases[] = {
        {"pressed below another one", "lLwhH", 'h', "lLwHh"},
        {"pressed on top", "lLwhH", 'L', "lLwhH"},
        {"raised for arranging", "hLwbH", 'h', "LwbHh"},
        {"put back from there", "dlwbLhH", 'L', "dlLwbhH"},
        {"the first one put back", "wbLhH", 'L', "LwbhH"},
        {"pinned during a film", "hLwHf", 'h', "LwHhf"},
        {"gone meanwhile", "lwh", 'H', "lwh"},
    };
    for (const Case& each : cases) {
        const std::string after = settled(each.before, each.risen);
        EXPECT_EQ(after, each.after) << each.what;
        EXPECT_TRUE(movesOf(after, each.risen).empty()) << each.what << ": would move for ever";
    }
}

TEST(RestackBudgetTest, LetsAnotherProgramWinForAWhile)
{
    using namespace std::chrono_literals;
    RestackBudget budget;
    const auto granted = [&](RestackBudget::Time from, int wanted) {
        int count = 0;
        for (int attempt = 0; attempt < wanted; ++attempt)
            count += budget.spend(from + attempt * 100ms) ? 1 : 0;
        return count;
    };
    EXPECT_EQ(granted(5s, 30), 8);
    EXPECT_EQ(budget.rest(8s), 7s);
    EXPECT_EQ(granted(5s + 7s, 20), 0);
    EXPECT_EQ(granted(15s, 30), 8) << "tries again later";
    EXPECT_EQ(granted(25s, 30), 0) << "the fight goes on: twice as long";
    EXPECT_EQ(granted(35s, 3), 3);
    EXPECT_EQ(granted(100s, 30), 8);
    EXPECT_EQ(budget.rest(100s), 10s) << "after a calm period";
}

} // namespace
} // namespace ambrelle::test
