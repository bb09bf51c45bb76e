// SPDX-License-Identifier: MIT

#include "model/SavedTheme.h"

#include "foundation/Json.h"

#include <QMap>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// So many screens away, even of the largest, a place can still be told as a widget's origin.
constexpr double farthestPart = 50;

double placeable(double part)
{
    return std::isfinite(part) ? std::clamp(part, -farthestPart, farthestPart) : 0;
}

} // namespace

QJsonObject SavedWidget::encode() const
{
    return {{u"config"_s, config.encode()}, {u"fx"_s, placeable(fx)}, {u"fy"_s, placeable(fy)}};
}

std::optional<SavedWidget> SavedWidget::decode(JsonReader& reader)
{
    JsonReader inner(reader.required<QJsonObject>("config"_L1), reader.path("config"_L1));
    std::optional<WidgetConfig> config = WidgetConfig::decode(inner);
    reader.adopt(inner);
    const auto fx = reader.required<double>("fx"_L1);
    const auto fy = reader.required<double>("fy"_L1);
    if (!config || !reader.ok())
        return std::nullopt;
    return SavedWidget{std::move(*config), placeable(fx), placeable(fy)};
}

Skin SavedTheme::dominantSkin() const
{
    QMap<Skin, int> counts;
    for (const SavedWidget& widget : widgets)
        ++counts[widget.config.skin];
    Skin dominant = Skin::glass;
    int most = 0;
    for (const SavedWidget& widget : widgets) {
        if (const int count = counts.value(widget.config.skin); count > most) {
            most = count;
            dominant = widget.config.skin;
        }
    }
    return dominant;
}

QString SavedTheme::nameFrom(const QString& text)
{
    QString name = text.trimmed().left(longestName);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1); // its other half was cut off
    return name.trimmed();
}

QJsonObject SavedTheme::encode() const
{
    QJsonArray array;
    for (const SavedWidget& widget : widgets)
        array.append(widget.encode());
    QJsonObject object{{u"id"_s, JsonForm<QUuid>::write(id)}, {u"name"_s, name},
        {u"created"_s, JsonForm<QDateTime>::write(created)}, {u"widgets"_s, array}};
    if (wallpaper)
        object.insert("wallpaper"_L1, JsonForm<Skin>::write(*wallpaper));
    return object;
}

std::optional<SavedTheme> SavedTheme::decode(JsonReader& reader)
{
    SavedTheme theme{.id = reader.required<QUuid>("id"_L1),
        .name = reader.required<QString>("name"_L1),
        .created = reader.required<QDateTime>("created"_L1),
        .wallpaper = reader.optional<Skin>("wallpaper"_L1)};
    const auto widgets = reader.required<QJsonArray>("widgets"_L1);
    for (qsizetype i = 0; reader.ok() && i < widgets.size(); ++i) {
        JsonReader inner(widgets[i], reader.path("widgets"_L1, i));
        if (std::optional<SavedWidget> widget = SavedWidget::decode(inner))
            theme.widgets.append(std::move(*widget));
        reader.adopt(inner);
    }
    return reader.ok() ? std::optional(std::move(theme)) : std::nullopt;
}

} // namespace ambrelle
