// SPDX-License-Identifier: MIT

#include "platform/x11/connection/WindowManager.h"

#include <algorithm>

namespace ambrelle {

WindowManager::WindowManager(const X11Connection& connection)
    : m_connection(connection)
{
}

void WindowManager::forget()
{
    m_facts.reset();
}

const WindowManager::Facts& WindowManager::facts() const
{
    if (m_facts)
        return *m_facts;
    m_facts.emplace();
    const auto checkAsked = m_connection.ask(m_connection.root(), Atom::supportingWmCheck);
    const auto supportedAsked = m_connection.ask(m_connection.root(), Atom::supported);
    const std::vector<uint32_t> check = m_connection.values(checkAsked);
    std::vector<uint32_t> supported = m_connection.values(supportedAsked);
    if (check.empty())
        return *m_facts;
    // The root window keeps what a window manager wrote there that has died; that window does not.
    QByteArray name = m_connection.text(check.front(), Atom::wmName);
    if (!name.isEmpty() || m_connection.values(check.front(), Atom::supportingWmCheck) == check)
        m_facts = {check.front(), std::move(name), std::move(supported)};
    return *m_facts;
}

bool WindowManager::supports(Atom hint) const
{
    return std::ranges::find(facts().supported, m_connection.atom(hint)) != facts().supported.end();
}

bool WindowManager::keepsPanels() const
{
    // Tiling ones that know the first two but no pagers frame such windows, or do not manage them at all.
    return supports(Atom::stateBelow) && supports(Atom::typeDesktop) && supports(Atom::stateSkipPager);
}

xcb_atom_t WindowManager::floatingType() const
{
    return m_connection.atom(facts().name == "Xfwm4" ? Atom::typeUtility : Atom::typeDock);
}

bool WindowManager::canRestack() const
{
    return supports(Atom::restackWindow);
}

xcb_window_t WindowManager::window() const
{
    return facts().window;
}

} // namespace ambrelle
