// SPDX-License-Identifier: MIT

#include "placement/StoredWidget.h"

#include <QJsonArray>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QSizeF sizeFrom(const QJsonArray& stored, qsizetype first = 0)
{
    return {stored.at(first).toDouble(), stored.at(first + 1).toDouble()};
}

} // namespace

QJsonObject StoredWidget::encodePlace() const
{
    if (!home)
        return {};
    QJsonObject place{{u"size"_s, QJsonArray{home->size.width(), home->size.height()}},
        {u"connector"_s, home->connector}, {u"fit"_s, home->fit}, {u"fullFit"_s, home->fullFit}};
    if (stand) {
        const QRectF& frame = stand->frame;
        place.insert(u"screen"_s, stand->screen);
        place.insert(u"screenFrame"_s, QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()});
    }
    return place;
}

void StoredWidget::decodePlace(const QJsonValue& stored)
{
    const QJsonObject place = stored.toObject();
    const QSizeF size = sizeFrom(stored.isArray() ? stored.toArray() : place.value("size"_L1).toArray());
    if (size.isEmpty())
        return;
    const double fit = place.value("fit"_L1).toDouble(config.fit);
    const double fullFit = place.value("fullFit"_L1).toDouble(fit);
    home = {
        size, place.value("connector"_L1).toString(), WidgetConfig::clampedFit(fit), WidgetConfig::clampedFit(fullFit)};
    const QJsonArray frame = place.value("screenFrame"_L1).toArray();
    if (const QSizeF screen = sizeFrom(frame, 2); !screen.isEmpty())
        stand = {place.value("screen"_L1).toString(), QRectF({frame.at(0).toDouble(), frame.at(1).toDouble()}, screen)};
}

void makeDistinct(QList<StoredWidget>& widgets, QSet<QUuid> taken)
{
    for (StoredWidget& widget : widgets) {
        QUuid& id = widget.config.id;
        if (id.isNull() || taken.contains(id))
            id = QUuid::createUuid();
        taken.insert(id);
    }
}

} // namespace ambrelle
