// SPDX-License-Identifier: MIT

#include "platform/x11/session/WindowQuestion.h"

#include "platform/x11/connection/Reply.h"

#include <QMargins>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr uint32_t everyDesktop = 0xFFFFFFFF;
constexpr double fullOpacity = 0xFFFFFFFF;

struct TypeLayer {
    Atom type;
    OnscreenWindow::Layer layer;
};

constexpr auto normal = OnscreenWindow::Layer::normal;
constexpr auto overlay = OnscreenWindow::Layer::overlay;
constexpr std::array typeLayers{
    TypeLayer{Atom::typeNormal, normal},
    TypeLayer{Atom::typeDialog, normal},
    TypeLayer{Atom::typeUtility, normal},
    TypeLayer{Atom::typeToolbar, normal},
    TypeLayer{Atom::typeDesktop, OnscreenWindow::Layer::desktop},
    TypeLayer{Atom::typeDock, overlay},
    TypeLayer{Atom::typeMenu, overlay},
    TypeLayer{Atom::typeDropdownMenu, overlay},
    TypeLayer{Atom::typePopupMenu, overlay},
    TypeLayer{Atom::typeTooltip, overlay},
    TypeLayer{Atom::typeNotification, overlay},
    TypeLayer{Atom::typeSplash, overlay},
    TypeLayer{Atom::typeCombo, overlay},
    TypeLayer{Atom::typeDragged, overlay},
};

/// Of the first type known here: a window names its types from the special to the general.
OnscreenWindow::Layer layerOf(const X11Connection& x, const std::vector<uint32_t>& types)
{
    for (const uint32_t type : types) {
        const auto known =
            std::ranges::find_if(typeLayers, [&](const TypeLayer& row) { return x.atom(row.type) == type; });
        if (known != typeLayers.end())
            return known->layer;
    }
    return normal;
}

QMargins margins(const std::vector<uint32_t>& extents)
{
    if (extents.size() < 4)
        return {};
    const auto width = [&](std::size_t side) { return static_cast<int>(std::min(extents[side], uint32_t{0x7FFF})); };
    return {width(0), width(2), width(1), width(3)}; // told as left, right, top, bottom
}

} // namespace

WindowQuestion::WindowQuestion(const X11Connection& connection, xcb_window_t window)
    : m_connection(connection)
    , m_geometry(xcb_get_geometry(connection.handle(), window))
    , m_origin(xcb_translate_coordinates(connection.handle(), window, connection.root(), 0, 0))
    , m_attributes(xcb_get_window_attributes(connection.handle(), window))
    , m_desktop(connection.ask(window, Atom::wmDesktop))
    , m_states(connection.ask(window, Atom::wmState))
    , m_types(connection.ask(window, Atom::wmWindowType))
    , m_opacity(connection.ask(window, Atom::wmWindowOpacity))
    , m_frame(connection.ask(window, Atom::frameExtents))
    , m_shadow(connection.ask(window, Atom::gtkFrameExtents))
{
}

std::optional<WindowQuestion::Answer> WindowQuestion::answer(uint32_t currentDesktop) const
{
    const X11Connection& x = m_connection;
    // All are read, whatever the first ones say: an answer that nobody fetches is kept for ever.
    const Reply geometry(xcb_get_geometry_reply(x.handle(), m_geometry, nullptr));
    const Reply origin(xcb_translate_coordinates_reply(x.handle(), m_origin, nullptr));
    const Reply attributes(xcb_get_window_attributes_reply(x.handle(), m_attributes, nullptr));
    const std::vector<uint32_t> desktop = x.values(m_desktop);
    const std::vector<uint32_t> states = x.values(m_states);
    const std::vector<uint32_t> types = x.values(m_types);
    const std::vector<uint32_t> opacity = x.values(m_opacity);
    const QMargins frame = margins(x.values(m_frame));
    const QMargins shadow = margins(x.values(m_shadow));

    const auto has = [&](Atom state) { return std::ranges::find(states, x.atom(state)) != states.end(); };
    const bool elsewhere = !desktop.empty() && desktop.front() != everyDesktop && desktop.front() != currentDesktop;
    if (!geometry || !origin || !attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE || elsewhere
        || has(Atom::stateHidden) || has(Atom::stateShaded))
        return std::nullopt;
    const QRect inside(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
    return Answer{inside.marginsAdded(frame).marginsRemoved(shadow),
        {.alpha = opacity.empty() ? 1 : opacity.front() / fullOpacity,
            .layer = layerOf(x, types),
            .isFullScreen = has(Atom::stateFullScreen)}};
}

} // namespace ambrelle
