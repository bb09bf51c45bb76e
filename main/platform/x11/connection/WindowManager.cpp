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
    m_floatingType.reset();
    m_canRestack.reset();
}

xcb_atom_t WindowManager::floatingType() const
{
    if (!m_floatingType) {
        const std::vector<uint32_t> check = m_connection.values(m_connection.root(), Atom::supportingWmCheck);
        const QByteArray name = check.empty() ? QByteArray() : m_connection.text(check.front(), Atom::wmName);
        m_floatingType = m_connection.atom(name == "Xfwm4" ? Atom::typeUtility : Atom::typeDock);
    }
    return *m_floatingType;
}

bool WindowManager::canRestack() const
{
    if (!m_canRestack) {
        const std::vector<uint32_t> supported = m_connection.values(m_connection.root(), Atom::supported);
        m_canRestack = std::ranges::find(supported, m_connection.atom(Atom::restackWindow)) != supported.end();
    }
    return *m_canRestack;
}

} // namespace ambrelle
