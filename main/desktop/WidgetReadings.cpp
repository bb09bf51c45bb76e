// SPDX-License-Identifier: MIT

#include "desktop/WidgetReadings.h"

#include "desktop/ReadingRound.h"
#include "desktop/WidgetController.h"

namespace ambrelle {

namespace {

void giveReading(ReadingRound& round, WidgetController& widget)
{
    widget.setReading(round.readingFor(widget.config(), widget.showsSeconds()));
}

} // namespace

WidgetReadings::WidgetReadings(const ReadingFeed& feed, const QList<WidgetController*>& widgets)
    : m_feed(feed)
    , m_widgets(widgets)
{
    connect(&m_feed, &ReadingFeed::changed, this, &WidgetReadings::renewAll);
}

void WidgetReadings::renew(WidgetController& widget) const
{
    ReadingRound round(m_feed);
    giveReading(round, widget);
}

void WidgetReadings::renewAll(const WidgetKinds& kinds) const
{
    ReadingRound round(m_feed);
    for (WidgetController* widget : m_widgets) {
        if (contains(kinds, widget->config().kind))
            giveReading(round, *widget);
    }
}

} // namespace ambrelle
