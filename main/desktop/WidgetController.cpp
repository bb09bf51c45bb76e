// SPDX-License-Identifier: MIT

#include "desktop/WidgetController.h"

#include "desktop/DragHelp.h"
#include "desktop/OverlapRule.h"
#include "model/AppSettings.h"
#include "placement/ScreenPlacement.h"
#include "platform/SystemAppearance.h"
#include "skins/SkinRegistry.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

WidgetController::WidgetController(const StoredWidget& widget, const Collaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_widget(widget)
    , m_with(collaborators)
    , m_locating(collaborators.clock, [this] { locatingChanged(); })
    , m_panel(collaborators.host, collaborators.clock, collaborators.layers,
          view(widget.config.skin, widget.config.kind),
          {.pressed = [this] { Q_EMIT touched(); },
              .isLocked = [this] { return m_with.settings.locked(); },
              .dragged = [this](const QRectF& wanted,
                             Qt::KeyboardModifiers held) { return dragged(m_with.drags.place(*this, wanted, held)); },
              .dragEnded = [this](QPointF origin) { dragEnded(origin); },
              .clicked = [this](const FaceAction& action) { Q_EMIT clicked(action); },
              .toolbarUsed = [this](WidgetToolbar::Button button) { toolbarUsed(button); },
              .menuRequested = [this] { Q_EMIT menuRequested(); },
              .motionChanged = [this] { Q_EMIT motionChanged(); }})
    , m_fade(collaborators.clock, [this](double opacity) { m_panel.setOpacity(opacity); })
{
    applySettings();
    m_panel.setToolbar({title(config().scale), config().pinned});
    place();
    applyLayer();
}

bool WidgetController::isRaised() const
{
    return config().pinned || m_with.settings.layer() == WidgetLayer::floating;
}

bool WidgetController::showsSeconds() const
{
    return config().kind == WidgetKind::clock && m_panel.view().showsSeconds();
}

void WidgetController::change(const std::function<void(WidgetConfig&)>& edit)
{
    WidgetConfig& config = m_widget.config;
    const WidgetConfig before = config;
    edit(config);
    config.id = before.id;
    config.opacity = std::isfinite(config.opacity) ? std::clamp(config.opacity, 0.0, 1.0) : before.opacity;
    if (config == before)
        return;
    if (config.origin != before.origin)
        ScreenPlacement::settle(m_widget, m_with.host.screens());
    else if (config.size() != before.size())
        ScreenPlacement::resized(m_widget, before, m_with.host.screens());
    Q_EMIT recordChanged();
    show(before);
    Q_EMIT changed();
}

void WidgetController::show(const WidgetConfig& before)
{
    if (config().skin != before.skin || config().kind != before.kind)
        m_panel.setView(view(config().skin, config().kind));
    m_panel.setLook(look());
    m_panel.setToolbar({title(config().scale), config().pinned});
    place();
    applyLayer();
}

void WidgetController::setSkin(Skin skin)
{
    change([&](WidgetConfig& config) { config.skin = skin; });
}

void WidgetController::setScale(WidgetScale scale)
{
    change([&](WidgetConfig& config) { config.scale = scale; });
}

void WidgetController::setPinned(bool pinned)
{
    change([&](WidgetConfig& config) { config.pinned = pinned; });
}

void WidgetController::setOccluded(bool occluded)
{
    if (occluded == m_occluded)
        return;
    m_occluded = occluded;
    applySettings();
}

void WidgetController::setFaded(bool faded, bool hide)
{
    m_faded = faded;
    m_hides = hide;
    showFade();
}

void WidgetController::showFade()
{
    const bool faded = m_faded && !m_locating.isActive();
    if (faded != m_panel.isClickThrough())
        m_panel.setClickThrough(faded);
    m_fade.to(OverlapRule::opacity(faded, m_hides));
}

void WidgetController::locate()
{
    m_locating.start(m_with.appearance.reducesMotion());
    Q_EMIT touched(); // above the others of its level it stays
}

void WidgetController::locatingChanged()
{
    applyLayer();
    showFade();
    m_panel.setRing(m_locating.isLit());
}

WindowLevel WidgetController::level() const
{
    // Edit mode lifts every widget above its backdrop.
    const bool floating = isRaised() || m_with.settings.editing() || m_locating.isActive();
    return floating ? WindowLevel::floating : WindowLevel::desktop;
}

void WidgetController::applyLayer()
{
    m_panel.setLevel(level());
}

void WidgetController::applySettings()
{
    m_panel.setLook(look());
    m_panel.setMotionActive(m_with.settings.animations() && !m_occluded);
}

void WidgetController::renewView()
{
    m_panel.setView(view(config().skin, config().kind));
}

void WidgetController::rememberDisplay()
{
    if (!config().display || !config().displayOffset) // nearly always it is known, and the screens need not be asked
        ScreenPlacement::rememberDisplay(m_widget, m_with.host.screens());
}

bool WidgetController::syncDisplay(const StoredWidget& placed)
{
    const StoredWidget before = std::exchange(m_widget, placed);
    show(before.config); // also if it stays: a work area may have changed, or the window system moved the window
    return m_widget != before;
}

void WidgetController::close()
{
    Q_EMIT closed();
    disconnect();
    m_with.drags.ended();
    m_fade.stop();
    m_locating.stop();
    m_panel.close();
}

StoredWidget WidgetController::record() const
{
    StoredWidget record = m_widget;
    if (m_draggedTo) {
        record.config.origin = *m_draggedTo;
        ScreenPlacement::settle(record, m_with.host.screens());
    }
    return record;
}

QPointF WidgetController::dragged(QPointF origin)
{
    m_draggedTo = origin;
    Q_EMIT recordChanged();
    return origin;
}

void WidgetController::dragEnded(QPointF origin)
{
    const WidgetConfig before = config();
    const bool isStored = m_draggedTo.has_value();
    m_draggedTo.reset();
    m_with.drags.ended();
    m_widget.config.origin = origin;
    if (isStored || config() != before) {
        // Also where it started: its last step is stored as at home there, and it may have been a guest.
        ScreenPlacement::settle(m_widget, m_with.host.screens());
        Q_EMIT recordChanged();
    }
    place();
    if (config() != before)
        Q_EMIT changed();
}

void WidgetController::toolbarUsed(WidgetToolbar::Button button)
{
    switch (button) {
    case WidgetToolbar::Button::settings: Q_EMIT settingsRequested(); break;
    case WidgetToolbar::Button::scale: setScale(next(config().scale)); break;
    case WidgetToolbar::Button::pin: setPinned(!config().pinned); break;
    case WidgetToolbar::Button::remove: Q_EMIT removeRequested(); break;
    }
}

void WidgetController::place()
{
    const auto screen = ScreenPlacement::screenNear(widgetFrame(), m_with.host.screens());
    m_panel.place(widgetFrame(), screen ? ScreenPlacement::room(*screen) : QRectF());
}

FaceLook WidgetController::look() const
{
    return FaceLook::of(config(), m_with.settings.editing());
}

} // namespace ambrelle
