// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/LayerRole.h"
#include "platform/wayland/window/LayerPlace.h"
#include "platform/wayland/window/WaylandParts.h"

#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

class QWindow;

namespace ambrelle {

/// One of the toolkit's windows as a part of a layer, in place of a window that the compositor manages. The window is
/// shown and hidden through this alone, and has to live as long.
class LayerWindow final : public LayerMember {
public:
    /// How high it comes in among this program's windows in its layer.
    enum class Order {
        top, ///< above all others
        bottom, ///< below all others, and stays there
    };

    LayerWindow(WaylandParts& parts, QWindow& window, ShellLayer layer, Order order); ///< before the window is made
    ~LayerWindow();
    Q_DISABLE_COPY_MOVE(LayerWindow)

    void setPlace(const QRect& place); ///< in the toolkit's points; on the screen that shows most of it
    void setPlace(const QRect& place, QScreen& screen); ///< on that one, whatever it shows of it
    void setLayer(ShellLayer layer); ///< a change puts it above the others there
    void setTakesKeyboard(bool takes);
    /// The part that hears the pointer, window points; none: all of it.
    void setInputArea(const std::optional<QRect>& area);
    void show();
    void hide();
    void raise() { m_parts.order.raise(*this); } ///< above the others of its layer, unless it stays at the bottom
    /// Whether a button is held on it: who stays where it is until then hears all of the pointer.
    void setHeld(bool held);

    ShellLayer layer() const override { return m_layer; }
    const QScreen* screen() const override { return m_at.screen; }
    bool staysLow() const override { return m_order == Order::bottom; }
    bool joinAgain() override;

    bool isReady() const { return m_role && m_role->isReady(); } ///< the compositor takes pixels
    wl_surface* surface() const; ///< null while it is not shown
    QSize size() const { return m_at.place.size(); } ///< in the compositor's points

    std::function<void()> ready; ///< the compositor waits for pixels: first, or anew
    std::function<void()> lost; ///< from now on it takes none, until ready()

private:
    void setPlace(const QRect& place, const LayerPlace& at);
    void open();
    void close();
    void applyInput() const;
    bool comesAnew();

    WaylandParts& m_parts;
    QWindow& m_window;
    ShellLayer m_layer;
    Order m_order;
    QRect m_place;
    LayerPlace m_at;
    bool m_takesKeyboard = false;
    bool m_shown = false;
    bool m_held = false;
    bool m_late = false; ///< it has to come anew once nobody holds it
    std::optional<QRect> m_inputArea;
    std::unique_ptr<LayerRole> m_role;
    QTimer m_again; ///< the compositor has closed it
    std::chrono::milliseconds m_pause; ///< before that
};

} // namespace ambrelle
