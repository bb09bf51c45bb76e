// SPDX-License-Identifier: MIT

#include "model/WidgetConfig.h"

#include "foundation/Json.h"

#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// Beyond these a widget could be neither seen nor grasped.
constexpr double leastFit = 0.01;
constexpr double greatestFit = 10;

// The fields that have a default, once for both directions.
template <typename Config, typename Visitor> void visitDefaulted(Config& config, Visitor&& visit)
{
    visit("id"_L1, config.id);
    visit("scale"_L1, config.scale);
    visit("pinned"_L1, config.pinned);
    visit("backdrop"_L1, config.backdrop);
    visit("border"_L1, config.border);
    visit("opacity"_L1, config.opacity);
    visit("fit"_L1, config.fit);
    visit("timeZone"_L1, config.timeZone);
    visit("city"_L1, config.city);
    visit("photoFolder"_L1, config.photoFolder);
    visit("photoInterval"_L1, config.photoInterval);
    visit("photoFill"_L1, config.photoFill);
    visit("countdownTitle"_L1, config.countdownTitle);
    visit("countdownDate"_L1, config.countdownDate);
    visit("countdownStart"_L1, config.countdownStart);
    visit("quoteWords"_L1, config.quoteWords);
    visit("display"_L1, config.display);
    visit("displayOffset"_L1, config.displayOffset);
}

struct Writer {
    QJsonObject& object;

    template <typename T> void operator()(QLatin1StringView key, const T& field) const
    {
        object.insert(key, JsonForm<T>::write(field));
    }
    template <typename T> void operator()(QLatin1StringView key, const std::optional<T>& field) const
    {
        if (field)
            (*this)(key, *field);
    }
};

struct Reader {
    JsonReader& json;

    template <typename T> void operator()(QLatin1StringView key, T& field) const
    {
        if (std::optional<T> value = json.optional<T>(key))
            field = std::move(*value);
    }
    template <typename T> void operator()(QLatin1StringView key, std::optional<T>& field) const
    {
        field = json.optional<T>(key);
    }
};

} // namespace

double WidgetConfig::clampedFit(double fit)
{
    return std::clamp(fit, leastFit, greatestFit);
}

QSizeF WidgetConfig::size() const
{
    const QSizeF base = baseSize(sizeClass(skin, kind));
    return {std::round(base.width() * effectiveScale()), std::round(base.height() * effectiveScale())};
}

QJsonObject WidgetConfig::encode() const
{
    QJsonObject object;
    const Writer write{object};
    write("kind"_L1, kind);
    write("skin"_L1, skin);
    write("origin"_L1, origin);
    visitDefaulted(*this, write);
    return object;
}

std::optional<WidgetConfig> WidgetConfig::decode(JsonReader& reader)
{
    const auto kind = reader.required<WidgetKind>("kind"_L1);
    const Skin skin = JsonForm<Skin>::read(reader.raw("skin"_L1)).value_or(Skin::glass);
    WidgetConfig config(kind, skin);
    config.origin = reader.required<QPointF>("origin"_L1);
    visitDefaulted(config, Reader{reader});
    config.fit = clampedFit(config.fit);
    config.opacity = std::clamp(config.opacity, 0.0, 1.0);
    return reader.ok() ? std::optional(std::move(config)) : std::nullopt;
}

std::optional<QList<WidgetConfig>> WidgetConfig::decodeList(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return std::nullopt;
    QList<WidgetConfig> configs;
    QSet<QUuid> ids;
    for (const QJsonValue& element : document.array()) {
        JsonReader reader(element);
        std::optional<WidgetConfig> config = decode(reader);
        if (!config)
            continue;
        // A widget is found by its identity: of two with the same one, as in a list edited by hand, the later changes.
        if (ids.contains(config->id))
            config->id = QUuid::createUuid();
        ids.insert(config->id);
        configs.append(std::move(*config));
    }
    return configs;
}

QByteArray WidgetConfig::encodeList(const QList<WidgetConfig>& configs)
{
    QJsonArray array;
    for (const WidgetConfig& config : configs)
        array.append(config.encode());
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

} // namespace ambrelle
