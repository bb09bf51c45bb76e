// SPDX-License-Identifier: MIT

#include "model/ThemeEnvelope.h"

#include "foundation/ForeignText.h"
#include "foundation/Json.h"
#include "model/ThemeAccent.h"

#include <QJsonDocument>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr auto envelopeFormat = "Ambrelle Theme"_L1;
constexpr int envelopeVersion = 1;
// Nobody's desktop holds so many, and to look at more takes time.
constexpr qsizetype mostWidgets = 10'000;
constexpr double beyondIntegers = 0x1p63;

bool isWhole(const QJsonValue& json)
{
    const std::optional<double> number = JsonForm<double>::read(json);
    return number && *number == std::trunc(*number) && std::abs(*number) <= beyondIntegers;
}

/// A fault of the reader when one is not even a text.
QMap<QString, QString> readAccents(JsonReader& reader)
{
    const QJsonObject entries = reader.optional<QJsonObject>("accents"_L1).value_or(QJsonObject());
    QMap<QString, QString> accents;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (!entry.value().isString())
            reader.fail("accents"_L1, u"expected texts"_s);
        const std::optional<QColor> color = colorFromHex(entry.value().toString());
        if (color && parse<Skin>(entry.key()))
            accents.insert(entry.key(), hexText(*color));
    }
    return accents;
}

void clean(std::optional<QString>& text)
{
    if (text)
        text = foreignText(*text);
}

void cleanTexts(SavedTheme& theme)
{
    theme.name = foreignText(theme.name, SavedTheme::longestName);
    for (SavedWidget& widget : theme.widgets) {
        clean(widget.config.city);
        clean(widget.config.countdownTitle);
    }
}

} // namespace

QByteArray ThemeEnvelope::encode() const
{
    QJsonObject used;
    for (const SavedWidget& widget : theme.widgets) {
        const QString skin = rawValue(widget.config.skin);
        if (accents.contains(skin))
            used.insert(skin, accents.value(skin));
    }
    QJsonObject object{{u"format"_s, envelopeFormat}, {u"version"_s, envelopeVersion}, {u"theme"_s, theme.encode()}};
    if (!used.isEmpty())
        object.insert("accents"_L1, used);
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

std::optional<ThemeEnvelope> ThemeEnvelope::decode(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    JsonReader reader(document.object());
    if (reader.required<QString>("format"_L1) != envelopeFormat || !isWhole(reader.raw("version"_L1)))
        return std::nullopt;
    QMap<QString, QString> accents = readAccents(reader);
    const auto object = reader.required<QJsonObject>("theme"_L1);
    if (!reader.ok() || object.value("widgets"_L1).toArray().size() > mostWidgets)
        return std::nullopt;
    JsonReader inner(object, reader.path("theme"_L1));
    std::optional<SavedTheme> theme = SavedTheme::decode(inner);
    if (!theme)
        return std::nullopt;
    cleanTexts(*theme);
    return ThemeEnvelope{std::move(*theme), std::move(accents)};
}

SavedTheme ThemeEnvelope::imported(const QDateTime& now) const
{
    SavedTheme copy = theme;
    copy.id = QUuid::createUuid();
    copy.created = now;
    for (SavedWidget& widget : copy.widgets) {
        widget.config.id = QUuid::createUuid();
        widget.config.display.reset();
        widget.config.displayOffset.reset();
    }
    return copy;
}

} // namespace ambrelle
