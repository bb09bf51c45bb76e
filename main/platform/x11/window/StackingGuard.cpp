// SPDX-License-Identifier: MIT

#include "platform/x11/window/StackingGuard.h"

#include <algorithm>
#include <chrono>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds settling{60};

} // namespace

StackingGuard::StackingGuard(
    RootWatch& watch, const X11Parts& parts, const QList<X11Panel*>& panels, const QList<X11Backdrop*>& backdrops)
    : m_watch(watch)
    , m_parts(parts)
    , m_panels(panels)
    , m_backdrops(backdrops)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(settling);
    connect(&m_quiet, &QTimer::timeout, this, &StackingGuard::check);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &StackingGuard::check);
    m_time.start();
}

void StackingGuard::schedule()
{
    if (!m_quiet.isActive())
        m_quiet.start();
}

void StackingGuard::check()
{
    if (m_parts.manager.keepsPanels()) {
        checkManaged();
    } else {
        const std::vector<StackMove> moves = m_parts.order.moves();
        if (!moves.empty() && mayRestack())
            m_parts.order.apply(moves);
    }
    m_watch.drain();
}

void StackingGuard::checkManaged()
{
    const X11Connection& x = m_watch.connection();
    const std::vector<uint32_t> stacking = x.values(x.root(), Atom::clientListStacking);
    const QList<X11Panel*> panels = panelsInOrder(stacking, WindowLevel::desktop);
    QList<X11Panel*> wanted = panels;
    bool isInOrder = true;
    const auto firstPanel =
        std::stable_partition(wanted.begin(), wanted.end(), [](const X11Panel* panel) { return panel->isScene(); });
    if (!panels.isEmpty() && isForeignDesktopAbove(stacking, panels) && mayRestack()) {
        restack(wanted);
    } else if (wanted != panels && mayRestack()) {
        restack({firstPanel, wanted.end()}); // a scene appeared later than they
        isInOrder = false;
    }
    for (X11Panel* panel : panels) {
        if (isInOrder && panel->isHeldBack())
            panel->release();
    }
    const QList<X11Panel*> raised = panelsInOrder(stacking, WindowLevel::floating);
    if (!raised.isEmpty() && isBackdropAbove(stacking, raised) && mayRestack())
        restack(raised);
}

QList<X11Panel*> StackingGuard::panelsInOrder(const std::vector<uint32_t>& stacking, WindowLevel level) const
{
    QList<X11Panel*> ordered;
    for (const uint32_t window : stacking) {
        const auto found = std::ranges::find_if(m_panels, [window, level](const X11Panel* panel) {
            return panel->window() == window && panel->level() == level && panel->isShown();
        });
        if (found != m_panels.end())
            ordered.append(*found);
    }
    return ordered;
}

bool StackingGuard::isForeignDesktopAbove(const std::vector<uint32_t>& stacking, const QList<X11Panel*>& panels) const
{
    const X11Connection& x = m_watch.connection();
    std::vector<xcb_get_property_cookie_t> cookies;
    for (auto above = std::ranges::find(stacking, panels.first()->window()); above != stacking.end(); ++above) {
        const auto isOurs = [above](const X11Panel* panel) { return panel->window() == *above; };
        if (std::ranges::none_of(m_panels, isOurs))
            cookies.push_back(x.ask(*above, Atom::wmWindowType));
    }
    bool found = false;
    for (const xcb_get_property_cookie_t cookie : cookies) {
        const std::vector<uint32_t> types = x.values(cookie);
        found = found || (!types.empty() && types.front() == x.atom(Atom::typeDesktop));
    }
    return found;
}

bool StackingGuard::isBackdropAbove(const std::vector<uint32_t>& stacking, const QList<X11Panel*>& panels) const
{
    const auto lowest = std::ranges::find(stacking, panels.first()->window());
    return std::any_of(lowest, stacking.end(), [this](uint32_t window) {
        return std::ranges::any_of(m_backdrops, [window](const X11Backdrop* each) { return each->window() == window; });
    });
}

bool StackingGuard::mayRestack()
{
    const std::chrono::milliseconds now(m_time.elapsed());
    if (m_budget.spend(now))
        return true;
    m_later.start(m_budget.rest(now));
    return false;
}

void StackingGuard::restack(const QList<X11Panel*>& panels) const
{
    const bool onRequest = m_parts.manager.canRestack();
    for (X11Panel* panel : panels) {
        if (onRequest)
            m_parts.connection.tellManager(
                panel->window(), Atom::restackWindow, {WindowHint::fromPager, XCB_WINDOW_NONE, XCB_STACK_MODE_ABOVE});
        else
            panel->remap();
    }
}

} // namespace ambrelle
