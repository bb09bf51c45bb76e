// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/PixelBuffer.h"
#include "platform/wayland/window/LayerWindow.h"

#include <QSinglePointEvent>
#include <QWindow>

#include <vector>

namespace ambrelle {

/// A window that nobody sees over a whole output: what the pointer does there comes here. It shows a single transparent
/// pixel.
class OutputShield final : public QWindow {
public:
    OutputShield(WaylandParts& parts, QScreen& screen, ShellLayer layer);
    ~OutputShield() override;

    /// One over each output that can show something.
    static std::vector<std::unique_ptr<OutputShield>> overAll(WaylandParts& parts, ShellLayer layer);

    std::function<void(const QSinglePointEvent& event, const QPointF& place)> heard; ///< at once; the toolkit's points
    // Both are called by the event loop and may end this window.
    std::function<void()> pressed;
    std::function<void(const QPointF& place)> entered; ///< the toolkit's points

protected:
    bool event(QEvent* event) override;

private:
    void fill();

    WaylandParts& m_parts;
    std::unique_ptr<PixelBuffer> m_pixel;
    Handle<wp_viewport> m_viewport;
    LayerWindow m_layer; // last: it ends before what it shows
};

} // namespace ambrelle
