// SPDX-License-Identifier: MIT

#include "platform/wayland/window/ClickShields.h"

#include "platform/wayland/connection/PixelBuffer.h"
#include "platform/wayland/window/LayerWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace ambrelle {

/// Shows a single transparent pixel, as large as its output.
class ClickShields::Shield final : public QWindow {
public:
    Shield(WaylandParts& parts, QScreen& screen, std::function<void()> clicked)
        : m_clicked(std::move(clicked))
        , m_layer(parts, *this, ShellLayer::top, LayerWindow::Order::top)
    {
        setFlag(Qt::FramelessWindowHint);
        setFlag(Qt::WindowDoesNotAcceptFocus);
        m_layer.ready = [this, &parts] { fill(parts.connection); };
        m_layer.setPlace(screen.geometry());
        m_layer.show();
    }
    ~Shield() override
    {
        m_viewport.reset();
        m_layer.hide();
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            // It ends in the end of this window.
            QMetaObject::invokeMethod(qGuiApp, m_clicked, Qt::QueuedConnection);
            return true;
        }
        return QWindow::event(event);
    }

private:
    void fill(const WaylandConnection& connection)
    {
        wl_surface* const surface = m_layer.surface();
        const bool stretches = connection.viewporter() != nullptr;
        m_pixel = PixelBuffer::make(connection.memory(), stretches ? QSize(1, 1) : size());
        if (!surface || !m_pixel)
            return;
        if (stretches) {
            m_viewport.reset(wp_viewporter_get_viewport(connection.viewporter(), surface));
            wp_viewport_set_destination(m_viewport.get(), width(), height());
        }
        wl_surface_set_buffer_scale(surface, 1);
        m_pixel->attachTo(surface);
        wl_surface_damage_buffer(surface, 0, 0, m_pixel->size().width(), m_pixel->size().height());
        wl_surface_commit(surface);
    }

    std::function<void()> m_clicked;
    std::unique_ptr<PixelBuffer> m_pixel;
    Handle<wp_viewport> m_viewport;
    LayerWindow m_layer; // last: it ends before what it shows
};

ClickShields::ClickShields(WaylandParts& parts)
    : m_parts(parts)
{
}

ClickShields::~ClickShields() = default;

void ClickShields::setRaised(bool raised)
{
    if (raised != m_shields.empty())
        return;
    m_shields.clear();
    if (!raised)
        return;
    for (QScreen* screen : QGuiApplication::screens()) {
        m_shields.push_back(std::make_unique<Shield>(m_parts, *screen, [this] {
            if (clicked)
                clicked();
        }));
    }
}

} // namespace ambrelle
