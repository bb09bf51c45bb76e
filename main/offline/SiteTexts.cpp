// SPDX-License-Identifier: MIT

#include "offline/SiteTexts.h"

namespace ambrelle::SiteTexts {

using namespace Qt::StringLiterals;

QString blurb(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::clock: return u"The time and the date, at home or in any city you like."_s;
    case WidgetKind::calendar: return u"The whole month at a glance, with today marked."_s;
    case WidgetKind::cpu: return u"How busy the processor is, and how busy it has been for the last minutes."_s;
    case WidgetKind::memory: return u"How much memory is taken, and by what sort of use."_s;
    case WidgetKind::disk: return u"How much room is left on your disks."_s;
    case WidgetKind::battery: return u"The charge, and how long it will last or take."_s;
    case WidgetKind::network: return u"What goes in and out right now, as figures and as a chart."_s;
    case WidgetKind::downloads: return u"All that was received since you last started counting."_s;
    case WidgetKind::processes: return u"The programs that keep the machine busiest."_s;
    case WidgetKind::weather: return u"The weather outside and in the days to come, for your place."_s;
    case WidgetKind::events: return u"What comes next in your calendars."_s;
    case WidgetKind::nowPlaying: return u"The song that plays, with its cover, its progress and buttons for it."_s;
    case WidgetKind::photo: return u"Pictures from a folder of yours, one after the other."_s;
    case WidgetKind::focus: return u"Sessions of work and breaks, one click to start."_s;
    case WidgetKind::reminders: return u"What is to be done; a click ticks it off."_s;
    case WidgetKind::countdown: return u"The days until the date that matters."_s;
    case WidgetKind::sky: return u"The phase of the moon, and the way of the sun through the day."_s;
    case WidgetKind::activity: return u"How long you have been at the computer today."_s;
    case WidgetKind::quote: return u"Something worth reading, another one every day."_s;
    case WidgetKind::devices: return u"The batteries of headphones, mice and keyboards."_s;
    }
    return {};
}

} // namespace ambrelle::SiteTexts
