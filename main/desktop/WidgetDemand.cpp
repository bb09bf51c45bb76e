// SPDX-License-Identifier: MIT

#include "desktop/WidgetDemand.h"

#include "desktop/WidgetController.h"
#include "faces/ReadingFeed.h"
#include "platform/SessionVisibility.h"
#include "services/LiveServices.h"
#include "services/SystemMonitor.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

WidgetKinds kindsOf(const QList<WidgetController*>& widgets)
{
    WidgetKinds kinds;
    for (const WidgetController* widget : widgets)
        kinds |= kindSet({widget->config().kind});
    return kinds;
}

} // namespace

WidgetDemand::WidgetDemand(const Collaborators& collaborators, const QList<WidgetController*>& widgets)
    : m_with(collaborators)
    , m_widgets(widgets)
{
    connect(&m_with.session, &SessionVisibility::changed, this, &WidgetDemand::tellFeed);
}

void WidgetDemand::update()
{
    const WidgetKinds kinds = kindsOf(m_widgets);
    m_with.monitor.setWantsProcesses(contains(kinds, WidgetKind::processes));
    m_with.services.demand(kinds);
    tellPhotos();
    tellFeed();
}

void WidgetDemand::tellFeed()
{
    const bool seconds = std::ranges::any_of(m_widgets, &WidgetController::showsSeconds);
    m_with.feed.setAudience({.looks = m_with.session.isVisible(), .kinds = kindsOf(m_widgets), .seconds = seconds});
}

/// Only what changed, since a photo that is configured waits for its whole interval again.
void WidgetDemand::tellPhotos()
{
    PhotoAlbum& photos = m_with.services.photos;
    const QHash<QUuid, PhotoWish> told = std::exchange(m_photos, {});
    for (const WidgetController* widget : m_widgets) {
        const WidgetConfig& config = widget->config();
        if (config.kind != WidgetKind::photo)
            continue;
        const PhotoWish wish{config.photoFolder, config.photoInterval, (config.size() * widget->pixelRatio()).toSize()};
        m_photos.insert(config.id, wish);
        if (told.value(config.id) != wish || !told.contains(config.id))
            photos.configure(config.id, wish.folder, wish.minutes, wish.pixels);
    }
    photos.keepOnly(m_photos.keys());
}

} // namespace ambrelle
