// SPDX-License-Identifier: MIT

#include "platform/x11/window/X11Panel.h"

#include "platform/toolkit/PixelGrid.h"
#include "platform/x11/window/RoundedRows.h"
#include "platform/x11/window/X11Canvas.h"

#include <xcb/shape.h>

#include <array>
#include <chrono>
#include <cmath>

namespace ambrelle {

namespace {

// Without a compositor a window is either there or not.
constexpr double leastOpacityShown = 0.5;

// What tells it from widgets for other programs; no list of windows shows it.
constexpr auto sceneName = "ambrelle-scene";

// A window manager puts a window that is taken from it back on the root window at a moment of its own.
constexpr std::chrono::milliseconds handover{200};

// A window manager may tell nothing of the order of windows.
constexpr std::chrono::milliseconds longestHold{1000};

// Of a scene painted at once: the memory stays with this program and the server, and would be large only for it.
constexpr int pixelsOfScene = 1 << 17;

/// Takes no input focus, appears as a normal window, and belongs to no group. The toolkit makes all its windows one,
/// and Xfwm4 keeps the floating ones of a group no higher than those of the desktop level.
void writeHints(const X11Connection& x, xcb_window_t window)
{
    constexpr uint32_t inputAndState = 3;
    constexpr uint32_t normalState = 1;
    const std::array<uint32_t, 9> hints{inputAndState, 0, normalState};
    xcb_change_property(x.handle(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32,
        static_cast<uint32_t>(hints.size()), hints.data());
}

xcb_rectangle_t shapeRectangle(const QRect& rect)
{
    return {static_cast<int16_t>(rect.x()), static_cast<int16_t>(rect.y()), static_cast<uint16_t>(rect.width()),
        static_cast<uint16_t>(rect.height())};
}

} // namespace

X11Panel::X11Panel(PanelDelegate& delegate, X11Parts& parts, Rank rank)
    : SurfacePanel(delegate, parts.screens, rank,
        std::make_unique<X11Canvas>(parts, X11Canvas::Ground::pictureAndShades,
            rank == Rank::panel || parts.compositor.isActive(),
            rank == Rank::panel ? X11Canvas::pixelsOfPanel : pixelsOfScene))
    , m_parts(parts)
{
    if (isScene())
        surface().setTitle(QString::fromLatin1(sceneName));
    surface().create();
    m_window = static_cast<xcb_window_t>(surface().winId());
    QObject::connect(&surface(), &PanelSurface::pixelRatioChanged, &surface(), [this] {
        place();
        applyInput();
        applyShape();
    });
    // Openbox gives its frame the input area only when that is set after the window has appeared.
    QObject::connect(&surface(), &PanelSurface::appeared, &surface(), [this] { applyInput(); });
    // What window managers do for the windows that they keep.
    QObject::connect(&surface(), &PanelSurface::pressed, &surface(), [this] {
        if (m_bypassed)
            m_parts.order.settle(m_window);
    });
    m_return.setSingleShot(true);
    m_return.setInterval(handover);
    QObject::connect(&m_return, &QTimer::timeout, &surface(), [this] {
        show();
        place();
    });
    m_holding.setSingleShot(true);
    m_holding.setInterval(longestHold);
    QObject::connect(&m_holding, &QTimer::timeout, &surface(), [this] { release(); });
    dress();
    applyShape();
}

X11Panel::~X11Panel()
{
    if (onDestroyed)
        onDestroyed(this);
    m_parts.order.remove(m_window);
    QObject::disconnect(&surface(), &PanelSurface::pixelRatioChanged, nullptr, nullptr);
    QObject::disconnect(&surface(), &PanelSurface::appeared, nullptr, nullptr);
}

void X11Panel::place()
{
    const QRect wanted = wantedPlace();
    const bool resizes = isShown() && wanted.size() != surface().size();
    surface().moveTo(wanted);
    if (!resizes)
        return;
    // A window manager may keep a window whose size changes on the screen, though it lets it be moved off.
    const QPoint corner = X11Canvas::nativeCorner(surface());
    const std::array<uint32_t, 2> place{static_cast<uint32_t>(corner.x()), static_cast<uint32_t>(corner.y())};
    xcb_configure_window(
        m_parts.connection.handle(), m_window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place.data());
}

void X11Panel::show()
{
    m_return.stop();
    if (isShown())
        return;
    surface().show();
    if (std::exchange(m_wasShown, true))
        announce();
}

void X11Panel::hide()
{
    m_return.stop();
    if (!isShown())
        return;
    surface().hide();
    dress();
}

void X11Panel::setLevel(WindowLevel level)
{
    if (level == m_level)
        return;
    m_level = level;
    if (isShown() && !m_bypassed)
        remap();
    else
        dress();
}

void X11Panel::remap()
{
    // Openbox reads the type of a window only when the window appears.
    surface().hide();
    dress();
    surface().show();
    announce();
}

void X11Panel::redress()
{
    const bool shown = isShown();
    const bool changesHands = m_bypassed == m_parts.manager.keepsPanels();
    if (shown && changesHands)
        hide();
    dress();
    if (shown && changesHands)
        m_return.start();
    else if (shown)
        announce();
}

void X11Panel::dress()
{
    m_bypassed = !m_parts.manager.keepsPanels();
    const X11Connection& x = m_parts.connection;
    const uint32_t bypassed = m_bypassed ? 1 : 0;
    xcb_change_window_attributes(x.handle(), m_window, XCB_CW_OVERRIDE_REDIRECT, &bypassed);
    describe();
    const bool changesPlace = m_parts.order.set(m_window, stackedKind());
    if (m_bypassed) // before it appears, or it would flash up over the windows
        m_parts.order.settle(changesPlace ? m_window : xcb_window_t{XCB_WINDOW_NONE});
}

StackedWindow::Kind X11Panel::stackedKind() const
{
    if (isScene())
        return StackedWindow::Kind::scene;
    return m_level == WindowLevel::floating ? StackedWindow::Kind::highPanel : StackedWindow::Kind::lowPanel;
}

/// Writes what a window manager reads when the window appears. Only raw properties: the toolkit's window flags would
/// rewrite type and states.
void X11Panel::describe()
{
    const X11Connection& x = m_parts.connection;
    const bool floating = m_level == WindowLevel::floating;
    const xcb_atom_t type = floating ? m_parts.manager.floatingType() : x.atom(Atom::typeDesktop);
    x.setProperty(m_window, Atom::wmWindowType, XCB_ATOM_ATOM, {type});
    std::vector<uint32_t> states{
        x.atom(Atom::stateSticky), x.atom(Atom::stateSkipTaskbar), x.atom(Atom::stateSkipPager)};
    if (floating)
        states.push_back(x.atom(Atom::stateAbove));
    x.setProperty(m_window, Atom::wmState, XCB_ATOM_ATOM, states);
    x.setProperty(m_window, Atom::wmDesktop, XCB_ATOM_CARDINAL, {WindowHint::everyDesktop});
    writeHints(x, m_window);
    // The toolkit also offers WM_TAKE_FOCUS, an invitation to move the focus here.
    x.setProperty(m_window, Atom::wmProtocols, XCB_ATOM_ATOM, {x.atom(Atom::wmDeleteWindow), x.atom(Atom::wmPing)});
    x.setText(m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, QByteArray("ambrelle\0Ambrelle\0", 18));
    x.setText(m_window, x.atom(Atom::wmName), x.atom(Atom::utf8String), isScene() ? sceneName : "Ambrelle");
}

/// Says the same once more to the window manager: after a window was hidden it removes the states at a moment of its
/// own, often after they were written anew.
void X11Panel::announce()
{
    if (m_bypassed)
        return;
    const X11Connection& x = m_parts.connection;
    const auto state = [&](uint32_t action, Atom first, uint32_t second = XCB_ATOM_NONE) {
        x.tellManager(m_window, Atom::wmState, {action, x.atom(first), second, WindowHint::fromApplication});
    };
    state(m_level == WindowLevel::floating ? WindowHint::addState : WindowHint::removeState, Atom::stateAbove);
    state(WindowHint::removeState, Atom::stateBelow);
    state(WindowHint::addState, Atom::stateSkipTaskbar, x.atom(Atom::stateSkipPager));
    state(WindowHint::addState, Atom::stateSticky);
    state(WindowHint::removeState, Atom::stateDemandsAttention);
    x.tellManager(m_window, Atom::wmDesktop, {WindowHint::everyDesktop, WindowHint::fromApplication});
}

void X11Panel::setOpacity(double opacity)
{
    m_opacity = std::clamp(opacity, 0.0, 1.0);
    const X11Connection& x = m_parts.connection;
    if (m_opacity >= 1)
        x.removeProperty(m_window, Atom::wmWindowOpacity);
    else
        x.setProperty(
            m_window, Atom::wmWindowOpacity, XCB_ATOM_CARDINAL, {static_cast<uint32_t>(m_opacity * 0xFFFFFFFF)});
    applyShape();
}

void X11Panel::applyInput()
{
    xcb_connection_t* connection = m_parts.connection.handle();
    const std::optional<QRectF> heard = inputArea();
    if (!heard) {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, m_window, 0, 0, XCB_PIXMAP_NONE);
    } else {
        const QRect area = PixelGrid(pixelRatio()).pixels(*heard);
        const xcb_rectangle_t rectangle = shapeRectangle(area);
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, m_window, 0,
            0, area.isEmpty() ? 0 : 1, &rectangle);
    }
}

void X11Panel::setOutline(const QList<RoundedArea>& areas)
{
    if (areas == m_outline)
        return;
    m_outline = areas;
    applyShape();
}

/// Where nothing composites a window covers its whole rectangle, so it is cut to its outline: otherwise its margins
/// would hide the faces of its neighbours and other windows. Where there is a picture behind, it shows between the
/// outline and what the panel paints.
void X11Panel::applyShape()
{
    const bool bare = !m_parts.compositor.isActive();
    // Marks on black would be worse than none.
    const bool hidden =
        isHeldBack() || (bare && (m_opacity < leastOpacityShown || (isScene() && !m_parts.picture.isThere())));
    const bool cut = bare && !m_outline.isEmpty();
    xcb_connection_t* connection = m_parts.connection.handle();
    if (!hidden && !cut) {
        if (m_shaped)
            xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window, 0, 0, XCB_PIXMAP_NONE);
        m_shaped = false;
    } else {
        std::vector<xcb_rectangle_t> rows;
        for (const RoundedArea& each : hidden ? QList<RoundedArea>() : m_outline) {
            const double ratio = pixelRatio();
            const std::vector<xcb_rectangle_t> more = each.shape.isEmpty() || m_parts.picture.isThere()
                ? roundedRows(PixelGrid(ratio).pixels(each.area), each.corner * ratio)
                : shapeRows(QTransform::fromScale(ratio, ratio).map(each.shape));
            rows.insert(rows.end(), more.begin(), more.end());
        }
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED, m_window,
            0, 0, static_cast<uint32_t>(rows.size()), rows.data());
        m_shaped = true;
    }
}

void X11Panel::holdBack()
{
    m_holding.start();
    applyShape();
}

void X11Panel::release()
{
    m_holding.stop();
    applyShape();
}

void X11Panel::groundChanged()
{
    applyShape();
    surface().groundChanged();
}

} // namespace ambrelle
