// SPDX-License-Identifier: MIT

#include "platform/x11/window/StackPlan.h"

#include <algorithm>
#include <initializer_list>
#include <ranges>

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

/// Puts all windows of a kind right above `floor` or, where there is none, right below `ceiling`, if one of them is not
/// between the two. Either may be the end of the order: none.
void moveBetween(
    const Order& order, StackedWindow::Kind kind, Place floor, Place ceiling, std::vector<StackMove>& moves)
{
    std::vector<Place> all;
    for (Place place = order.begin(); place != order.end(); ++place) {
        if (place->kind == kind)
            all.push_back(place);
    }
    const bool hasFloor = floor != order.end();
    const auto isAstray = [&](Place place) { return (hasFloor && place < floor) || place > ceiling; };
    if (std::ranges::none_of(all, isAstray))
        return;
    if (hasFloor) {
        for (const Place place : all | std::views::reverse)
            moves.push_back({place->window, floor->window, true});
    } else {
        for (const Place place : all)
            moves.push_back({place->window, ceiling->window, false});
    }
}

Place last(const Order& order, Place end, std::initializer_list<StackedWindow::Kind> kinds)
{
    const auto found = std::find_if(std::make_reverse_iterator(end), order.rend(), isOneOf(kinds));
    return found == order.rend() ? order.end() : std::prev(found.base());
}

} // namespace

std::vector<StackMove> stackMoves(const std::vector<StackedWindow>& order)
{
    std::vector<StackMove> moves;
    const Place highest = last(order, order.end(), {desktop, window, backdrop});
    const Place film =
        std::find_if(highest == order.end() ? order.begin() : highest, order.end(), isOneOf({fullScreen}));
    moveBetween(order, highPanel, highest, film, moves);

    // A desktop that lies over windows is one of them.
    const Place firstWindow = std::ranges::find_if(order, isOneOf({window, fullScreen, backdrop}));
    const Place ground = last(order, firstWindow, {desktop});
    const Place lowest = std::find_if(ground == order.end() ? order.begin() : ground, order.end(),
        isOneOf({window, fullScreen, backdrop, highPanel}));
    moveBetween(order, lowPanel, ground, lowest, moves);
    return moves;
}

} // namespace ambrelle
