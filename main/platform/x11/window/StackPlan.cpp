// SPDX-License-Identifier: MIT

#include "platform/x11/window/StackPlan.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace ambrelle {

namespace {

using enum StackedWindow::Kind;
using Order = std::vector<StackedWindow>;
using Place = Order::const_iterator;

auto isOneOf(std::initializer_list<StackedWindow::Kind> kinds)
{
    return [kinds = std::vector(kinds)](
               const StackedWindow& each) { return std::ranges::find(kinds, each.kind) != kinds.end(); };
}

Place last(const Order& order, Place end, std::initializer_list<StackedWindow::Kind> kinds)
{
    const auto found = std::find_if(std::make_reverse_iterator(end), order.rend(), isOneOf(kinds));
    return found == order.rend() ? order.end() : std::prev(found.base());
}

/// An order with the moves that have led to it.
struct Plan {
    void move(xcb_window_t window, xcb_window_t sibling, bool above);
    void moveBetween(StackedWindow::Kind kind, Place floor, Place ceiling);
    void raise(xcb_window_t window);

    Order order;
    std::vector<StackMove> moves;
};

void Plan::move(xcb_window_t window, xcb_window_t sibling, bool above)
{
    moves.push_back({window, sibling, above});
    const auto from = std::ranges::find(order, window, &StackedWindow::window);
    const StackedWindow moved = *from;
    order.erase(from);
    order.insert(std::ranges::find(order, sibling, &StackedWindow::window) + (above ? 1 : 0), moved);
}

/// Puts all windows of a kind right above `floor` or, where there is none, right below `ceiling`, if one of them is not
/// between the two. Either may be the end of the order: none.
void Plan::moveBetween(StackedWindow::Kind kind, Place floor, Place ceiling)
{
    const bool hasFloor = floor != order.end();
    bool isAstray = false;
    std::vector<xcb_window_t> all;
    for (Place place = order.begin(); place != order.end(); ++place) {
        if (place->kind != kind)
            continue;
        all.push_back(place->window);
        isAstray = isAstray || (hasFloor && place < floor) || place > ceiling;
    }
    if (!isAstray)
        return;
    const xcb_window_t sibling = hasFloor ? floor->window : ceiling->window;
    if (hasFloor)
        std::ranges::reverse(all);
    for (const xcb_window_t window : all)
        move(window, sibling, hasFloor);
}

/// Puts a window right above the others of its kind, if one of them is above it.
void Plan::raise(xcb_window_t window)
{
    const auto risen = std::ranges::find(order, window, &StackedWindow::window);
    if (risen == order.end())
        return;
    const Place top = last(order, order.end(), {risen->kind});
    if (top->window != window)
        move(window, top->window, true);
}

} // namespace

std::vector<StackMove> stackMoves(const std::vector<StackedWindow>& order, xcb_window_t risen)
{
    Plan plan{order, {}};
    const Order& now = plan.order;
    plan.raise(risen);

    const Place highest = last(now, now.end(), {desktop, window, backdrop});
    const Place film = std::find_if(highest == now.end() ? now.begin() : highest, now.end(), isOneOf({fullScreen}));
    plan.moveBetween(highPanel, highest, film);

    // A desktop that lies over windows is one of them.
    const Place firstWindow = std::ranges::find_if(now, isOneOf({window, fullScreen, backdrop}));
    const Place ground = last(now, firstWindow, {desktop});
    const Place lowest = std::find_if(
        ground == now.end() ? now.begin() : ground, now.end(), isOneOf({window, fullScreen, backdrop, highPanel}));
    plan.moveBetween(lowPanel, ground, lowest);

    const Place floor = last(now, std::ranges::find_if(now, isOneOf({window, fullScreen, backdrop})), {desktop});
    const Place first = std::find_if(floor == now.end() ? now.begin() : floor, now.end(),
        isOneOf({lowPanel, window, fullScreen, backdrop, highPanel}));
    plan.moveBetween(scene, floor, first);
    return std::move(plan.moves);
}

} // namespace ambrelle
