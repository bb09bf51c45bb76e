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
    LayerWindow(WaylandParts& parts, QWindow& window, ShellLayer layer); ///< before the window is made
    ~LayerWindow();
    Q_DISABLE_COPY_MOVE(LayerWindow)

    void setPlace(const QRect& place); ///< in the toolkit's points
    void setLayer(ShellLayer layer); ///< a change puts it above the others there
    void setTakesKeyboard(bool takes);
    /// The part that hears the pointer, window points; none: all of it.
    void setInputArea(const std::optional<QRect>& area);
    void show();
    void hide();
    void raise(); ///< above the others of its layer
    /// After the screens have moved: where it is to be now, also if its output has gone.
    void replace();

    bool isReady() const { return m_role && m_role->isReady(); } ///< the compositor takes pixels
    ShellLayer layer() const { return m_layer; }
    QWindow& window() const { return m_window; }
    wl_surface* surface() const; ///< null while it is not shown
    double factor() const { return m_at.factor; } ///< the compositor's points in one of the toolkit's

    std::function<void()> ready; ///< the compositor waits for pixels: first, or anew

private:
    void open();
    void close();
    void applyInput() const;

    WaylandParts& m_parts;
    QWindow& m_window;
    ShellLayer m_layer;
    QRect m_place;
    LayerPlace m_at;
    bool m_takesKeyboard = false;
    bool m_shown = false;
    std::optional<QRect> m_inputArea;
    std::unique_ptr<LayerRole> m_role;
};

} // namespace ambrelle
