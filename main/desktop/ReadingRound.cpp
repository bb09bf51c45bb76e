// SPDX-License-Identifier: MIT

#include "desktop/ReadingRound.h"

#include <algorithm>

namespace ambrelle {

namespace {

/// The record without what only tells how and where the widget is shown. Photos change by widget, so they keep who they
/// are.
WidgetConfig contentOf(const WidgetConfig& config)
{
    WidgetConfig content(config.kind, Skin::glass);
    content.id = config.kind == WidgetKind::photo ? config.id : QUuid();
    content.timeZone = config.timeZone;
    content.city = config.city;
    content.photoFolder = config.photoFolder;
    content.photoInterval = config.photoInterval;
    content.photoFill = config.photoFill;
    content.countdownTitle = config.countdownTitle;
    content.countdownDate = config.countdownDate;
    content.countdownStart = config.countdownStart;
    content.quoteWords = config.quoteWords;
    return content;
}

} // namespace

std::shared_ptr<const Reading> ReadingRound::readingFor(const WidgetConfig& config, bool seconds)
{
    const WidgetConfig content = contentOf(config);
    const auto known = std::ranges::find_if(
        m_entries, [&](const Entry& entry) { return entry.seconds == seconds && entry.config == content; });
    if (known != m_entries.end())
        return known->reading;
    auto reading = std::make_shared<const Reading>(m_feed.readingFor(config, seconds));
    m_entries.push_back({content, seconds, reading});
    return reading;
}

} // namespace ambrelle
