// SPDX-License-Identifier: MIT

#include "platform/x11/window/StackOrder.h"

#include "platform/x11/connection/Reply.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

using Kind = StackedWindow::Kind;

/// What a client says of its window. Every question must be answered once.
struct ClientQuestion {
    ClientQuestion(const X11Connection& connection, xcb_window_t window)
        : x(connection)
        , managed(x.ask(window, Atom::clientState))
        , types(x.ask(window, Atom::wmWindowType))
        , states(x.ask(window, Atom::wmState))
    {
    }

    struct Answer {
        bool managed = false; ///< a window manager has marked it as a client's
        Kind kind = Kind::window;
    };
    Answer answer() const
    {
        const std::vector<uint32_t> mark = x.values(managed);
        const std::vector<uint32_t> type = x.values(types);
        const std::vector<uint32_t> state = x.values(states);
        const bool fills = std::ranges::find(state, x.atom(Atom::stateFullScreen)) != state.end();
        const bool isDesktop = !type.empty() && type.front() == x.atom(Atom::typeDesktop);
        return {!mark.empty(), isDesktop ? Kind::desktop : fills ? Kind::fullScreen : Kind::window};
    }

    const X11Connection& x;
    xcb_get_property_cookie_t managed;
    xcb_get_property_cookie_t types;
    xcb_get_property_cookie_t states;
};

template <typename Tree> std::vector<xcb_window_t> children(const Tree& reply)
{
    if (!reply)
        return {};
    const xcb_window_t* first = xcb_query_tree_children(reply.get());
    return {first, first + xcb_query_tree_children_length(reply.get())};
}

/// What a child of the root window is asked, another program's. Must be answered once, too.
struct ChildQuestion {
    ChildQuestion(const X11Connection& connection, xcb_window_t child)
        : x(connection)
        , attributes(xcb_get_window_attributes(x.handle(), child))
        , tree(xcb_query_tree(x.handle(), child))
        , self(x, child)
    {
    }

    struct Answer {
        Kind kind = Kind::other;
        std::vector<xcb_window_t> inside; ///< one of which may be a client that it is the frame of
    };
    Answer answer() const
    {
        const Reply seen(xcb_get_window_attributes_reply(x.handle(), attributes, nullptr));
        const Reply inside(xcb_query_tree_reply(x.handle(), tree, nullptr));
        const ClientQuestion::Answer client = self.answer();
        if (!seen || seen->map_state != XCB_MAP_STATE_VIEWABLE || seen->_class == XCB_WINDOW_CLASS_INPUT_ONLY)
            return {};
        if (client.managed)
            return {client.kind, {}};
        return {seen->override_redirect ? Kind::other : client.kind, children(inside)};
    }

    const X11Connection& x;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_query_tree_cookie_t tree;
    ClientQuestion self;
};

} // namespace

StackOrder::StackOrder(const X11Connection& connection)
    : m_connection(connection)
{
}

bool StackOrder::set(xcb_window_t window, StackedWindow::Kind kind)
{
    const auto [place, isNew] = m_ours.try_emplace(window, kind);
    return std::exchange(place->second, kind) != kind || isNew;
}

std::vector<StackMove> StackOrder::moves(xcb_window_t risen) const
{
    return m_ours.empty() ? std::vector<StackMove>() : stackMoves(order(), risen);
}

void StackOrder::apply(const std::vector<StackMove>& moves) const
{
    xcb_connection_t* connection = m_connection.handle();
    for (const StackMove& move : moves) {
        const uint32_t values[]{move.sibling, move.above ? XCB_STACK_MODE_ABOVE : XCB_STACK_MODE_BELOW};
        const auto cookie = xcb_configure_window_checked(
            connection, move.window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values);
        xcb_discard_reply(connection, cookie.sequence); // the other one may have gone meanwhile
    }
}

std::vector<StackedWindow> StackOrder::order() const
{
    xcb_connection_t* connection = m_connection.handle();
    const Reply tree(xcb_query_tree_reply(connection, xcb_query_tree(connection, m_connection.root()), nullptr));
    std::vector<StackedWindow> order;
    std::vector<std::pair<std::size_t, ChildQuestion>> questions;
    for (const xcb_window_t child : children(tree)) {
        const auto own = m_ours.find(child);
        if (own == m_ours.end())
            questions.emplace_back(order.size(), ChildQuestion(m_connection, child));
        order.push_back({child, own == m_ours.end() ? Kind::other : own->second});
    }
    std::vector<std::pair<std::size_t, ClientQuestion>> framed;
    for (const auto& [place, question] : questions) {
        const ChildQuestion::Answer answer = question.answer();
        order[place].kind = answer.kind;
        for (const xcb_window_t each : answer.inside)
            framed.emplace_back(place, ClientQuestion(m_connection, each));
    }
    for (const auto& [place, question] : framed) {
        if (const ClientQuestion::Answer answer = question.answer(); answer.managed)
            order[place].kind = answer.kind;
    }
    return order;
}

} // namespace ambrelle
