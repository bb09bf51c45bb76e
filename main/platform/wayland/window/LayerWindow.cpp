// SPDX-License-Identifier: MIT

#include "platform/wayland/window/LayerWindow.h"

#include "platform/wayland/connection/ToolkitWayland.h"

#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

namespace {

// A compositor that closes a surface has a reason, which may soon be gone.
constexpr std::chrono::seconds firstPause{1};
constexpr std::chrono::seconds longestPause{60};

} // namespace

LayerWindow::LayerWindow(WaylandParts& parts, QWindow& window, ShellLayer layer, Order order)
    : m_parts(parts)
    , m_window(window)
    , m_layer(layer)
    , m_order(order)
    , m_pause(firstPause)
{
    // The toolkit makes a bare surface then, one that the compositor does not manage.
    m_window.setFlag(Qt::BypassWindowManagerHint);
    m_again.setSingleShot(true);
    QObject::connect(&m_again, &QTimer::timeout, &m_again, [this] { open(); });
}

LayerWindow::~LayerWindow()
{
    close();
}

wl_surface* LayerWindow::surface() const
{
    return m_shown ? toolkitSurface(&m_window) : nullptr;
}

void LayerWindow::setPlace(const QRect& place)
{
    setPlace(place, LayerPlace::of(place));
}

void LayerWindow::setPlace(const QRect& place, QScreen& screen)
{
    setPlace(place, LayerPlace::on(screen, place));
}

void LayerWindow::setPlace(const QRect& place, const LayerPlace& at)
{
    m_place = place;
    const bool elsewhere = at.screen != m_at.screen;
    m_at = at;
    if (at.screen && m_window.screen() != at.screen)
        m_window.setScreen(at.screen);
    m_window.setGeometry(place);
    if (!m_shown)
        return;
    if (elsewhere || !m_role)
        return open(); // a surface belongs to one output
    m_role->setPlace(at.place);
    m_role->commit();
}

void LayerWindow::setLayer(ShellLayer layer)
{
    if (layer == m_layer)
        return;
    m_layer = layer;
    if (!m_role || comesAnew())
        return;
    m_role->setLayer(layer);
    m_role->commit();
    if (!m_late)
        m_parts.order.joined(*this);
}

/// Where only that puts a window above the others, and as soon as nobody holds it. True: it has done so.
bool LayerWindow::comesAnew()
{
    if (m_parts.order.joining() != Joining::anew)
        return false;
    m_late = m_held;
    if (!m_held)
        open();
    return !m_held;
}

void LayerWindow::setHeld(bool held)
{
    m_held = held;
    if (!held && std::exchange(m_late, false) && m_role)
        open();
}

bool LayerWindow::joinAgain()
{
    if (!m_role)
        return false;
    if (comesAnew())
        return m_role != nullptr;
    if (m_late)
        return false;
    m_role->joinAgain(m_layer);
    return true;
}

void LayerWindow::setTakesKeyboard(bool takes)
{
    if (std::exchange(m_takesKeyboard, takes) == takes || !m_role)
        return;
    m_role->setTakesKeyboard(takes);
    m_role->commit();
}

void LayerWindow::setInputArea(const std::optional<QRect>& area)
{
    if (m_inputArea == area)
        return;
    m_inputArea = area;
    applyInput();
    if (isReady())
        m_role->commit();
}

void LayerWindow::applyInput() const
{
    wl_surface* const target = surface();
    if (!target)
        return;
    Handle<wl_region> region;
    if (m_inputArea) {
        region.reset(wl_compositor_create_region(m_parts.connection.compositor()));
        const auto points = [this](int value) { return static_cast<int>(std::lround(value * m_at.factor)); };
        if (!m_inputArea->isEmpty())
            wl_region_add(region.get(), points(m_inputArea->x()), points(m_inputArea->y()),
                points(m_inputArea->width()), points(m_inputArea->height()));
    }
    wl_surface_set_input_region(target, region.get());
}

void LayerWindow::show()
{
    if (m_shown)
        return;
    m_shown = true;
    m_window.show();
    open();
}

void LayerWindow::hide()
{
    if (!m_shown)
        return;
    close();
    m_pause = firstPause;
    m_shown = false;
    m_window.hide();
}

void LayerWindow::open()
{
    wl_surface* const target = surface();
    close();
    m_late = false;
    if (!m_at.screen) // it has gone since
        m_at = LayerPlace::of(m_place);
    wl_output* const output = toolkitOutput(m_at.screen);
    if (!target || !output)
        return; // until a screen comes
    wl_surface_attach(target, nullptr, 0, 0); // it may have been on another output
    wl_surface_commit(target);
    m_role = std::make_unique<LayerRole>(m_parts.connection, target, output, m_layer);
    m_role->ready = [this] {
        if (ready)
            ready();
    };
    m_role->closed = [this] {
        close();
        m_again.start(m_pause);
        m_pause = std::min<std::chrono::milliseconds>(2 * m_pause, longestPause);
    };
    m_role->setPlace(m_at.place);
    m_role->setTakesKeyboard(m_takesKeyboard);
    applyInput();
    m_role->commit();
    m_parts.order.joined(*this);
}

void LayerWindow::close()
{
    m_again.stop();
    if (m_role && lost)
        lost();
    m_parts.order.left(*this);
    m_role.reset();
}

} // namespace ambrelle
