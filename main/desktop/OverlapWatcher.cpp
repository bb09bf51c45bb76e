// SPDX-License-Identifier: MIT

#include "desktop/OverlapWatcher.h"

#include "desktop/OverlapRule.h"
#include "desktop/SceneController.h"
#include "desktop/WidgetController.h"
#include "foundation/Clock.h"
#include "model/AppSettings.h"
#include "platform/SessionVisibility.h"

#include <algorithm>

namespace ambrelle {

namespace {

// A slider changes a widget with every step of the pointer; its place among the windows is looked at less often.
constexpr std::chrono::milliseconds overlapSettling{100};

// A ghost that missed the end of what it gave way to would be one for ever, so it looks for itself as well.
constexpr std::chrono::milliseconds ghostLook{800};

} // namespace

OverlapWatcher::OverlapWatcher(const Senses& senses, const AppSettings& settings, Clock& clock,
    const QList<WidgetController*>& widgets, const SceneController& scenes)
    : m_senses(senses)
    , m_settings(settings)
    , m_clock(clock)
    , m_widgets(widgets)
    , m_scenes(scenes)
{
    connect(&m_senses.windows, &WindowList::changed, this, &OverlapWatcher::check);
    connect(&m_senses.session, &SessionVisibility::changed, this, &OverlapWatcher::update);
}

bool OverlapWatcher::mayFade() const
{
    return m_settings.overlap() != OverlapBehavior::show && !m_settings.editing()
        && std::ranges::any_of(m_widgets, [](const WidgetController* widget) { return widget->isRaised(); });
}

bool OverlapWatcher::mayPause() const
{
    return m_settings.animations() && !m_settings.editing()
        && (std::ranges::any_of(m_widgets, [](const WidgetController* widget) { return widget->moves(); })
            || std::ranges::any_of(m_scenes.scenes(), [](const auto& scene) { return scene->moves(); }));
}

void OverlapWatcher::update()
{
    const bool seen = m_senses.session.isVisible();
    const bool fades = mayFade();
    const bool pauses = mayPause();
    const bool needed = seen && (fades || pauses);
    const bool starts = needed && !m_watching;
    for (WidgetController* widget : m_widgets) {
        if (!fades)
            widget->setFaded(false, false);
        if (starts || !pauses || !seen)
            widget->setOccluded(!seen);
    }
    if (starts || !pauses || !seen) {
        for (const auto& scene : m_scenes.scenes())
            scene->setOccluded(!seen);
    }
    if (needed != m_watching)
        m_senses.windows.setWatching(needed);
    m_watching = needed;
    if (!needed)
        m_again.reset();
    if (starts)
        check();
    else if (needed && !m_soon)
        m_soon = m_clock.after(overlapSettling, [this] { check(); });
}

void OverlapWatcher::check()
{
    m_soon.reset();
    if (!m_watching)
        return;
    if (const auto all = m_senses.windows.windows())
        judge(OverlapRule::counting(*all));
    const bool ghosts =
        std::ranges::any_of(m_widgets, [](const WidgetController* widget) { return widget->isFaded(); });
    m_again = ghosts ? m_clock.after(ghostLook, [this] { check(); }) : Ticket();
}

void OverlapWatcher::judge(const QList<OnscreenWindow>& windows)
{
    const bool fades = mayFade();
    const bool pauses = mayPause();
    for (WidgetController* widget : m_widgets) {
        const bool over = widget->isRaised() && OverlapRule::isOver(widget->widgetFrame(), windows);
        if (fades)
            widget->setFaded(over, m_settings.overlap() == OverlapBehavior::hide);
        if (pauses)
            widget->setOccluded(over || OverlapRule::isUnder(widget->widgetFrame(), windows));
    }
    if (!pauses)
        return;
    for (const auto& scene : m_scenes.scenes()) {
        scene->setOccluded(std::ranges::all_of(
            scene->movingPlaces(), [&](const QRectF& place) { return OverlapRule::isUnder(place, windows); }));
    }
}

} // namespace ambrelle
