// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/LayerRole.h"
#include "platform/wayland/window/LayerPlace.h"
#include "platform/wayland/window/WaylandParts.h"

#include <memory>
#include <optional>

class QWindow;

namespace ambrelle {

/// One of the toolkit's windows as a part of a layer, in place of a window that the compositor manages. The window is
/// shown and hidden through this alone, and has to live as long.
class LayerWindow {
public:
    /// How high it comes in among this program's windows in its layer.
    enum class Order {
        top, ///< above all others
        bottom, ///< below all others, and stays there
    };

    LayerWindow(WaylandParts& parts, QWindow& window, ShellLayer layer, Order order); ///< before the window is made
    ~LayerWindow();
    Q_DISABLE_COPY_MOVE(LayerWindow)

    void setPlace(const QRect& place); ///< in the toolkit's points
    void setLayer(ShellLayer layer); ///< a change puts it above the others there
    void setTakesKeyboard(bool takes);
    /// The part that hears the pointer, window points; none: all of it.
    void setInputArea(const std::optional<QRect>& area);
    void show();
    void hide();
    void joinAgain(); ///< leaves its layer and comes back at once

    bool isReady() const { return m_role && m_role->isReady(); } ///< the compositor takes pixels
    bool staysLow() const { return m_order == Order::bottom; }
    bool isInLayerOf(const LayerWindow& other) const;
    wl_surface* surface() const; ///< null while it is not shown

    std::function<void()> ready; ///< the compositor waits for pixels: first, or anew

private:
    void open();
    void close();
    void applyInput() const;

    WaylandParts& m_parts;
    QWindow& m_window;
    ShellLayer m_layer;
    Order m_order;
    QRect m_place;
    LayerPlace m_at;
    bool m_takesKeyboard = false;
    bool m_shown = false;
    std::optional<QRect> m_inputArea;
    std::unique_ptr<LayerRole> m_role;
};

} // namespace ambrelle
