// SPDX-License-Identifier: MIT

#include "offline/SampleData.h"

#include "foundation/Wording.h"
#include "services/LiveServices.h"
#include "services/SystemMonitor.h"

namespace ambrelle::SampleData {

using namespace Qt::StringLiterals;

namespace {

const QUuid photoWidget(u"6f1d2c3a-58b4-4e0f-9a77-21c0de5a4b10"_s);

} // namespace

QDateTime moment()
{
    return {QDate(2026, 10, 14), QTime(9, 41)};
}

WidgetConfig widget(WidgetKind kind)
{
    WidgetConfig config(kind, Skin::glass);
    switch (kind) {
    case WidgetKind::clock:
        config.city = Wording::tr("Reykjavík");
        config.timeZone = u"Atlantic/Reykjavik"_s;
        break;
    case WidgetKind::photo: config.id = photoWidget; break;
    case WidgetKind::countdown:
        config.countdownTitle = Wording::tr("Trip to Lisbon");
        config.countdownDate = moment().addDays(42);
        config.countdownStart = moment().addDays(-58);
        break;
    default: break;
    }
    return config;
}

void load(SystemMonitor& monitor, LiveServices& services, const QImage& picture)
{
    monitor.loadPreviewData();
    services.loadPreviewData(picture);
    services.reminders.complete(services.reminders.reminders().at(2).id); // a tick is part of the picture
    services.photos.loadPreview(photoWidget, picture);
}

} // namespace ambrelle::SampleData
