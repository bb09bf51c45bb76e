// SPDX-License-Identifier: MIT

#include "offline/SiteLosses.h"

#include <QJsonArray>
#include <QStringList>

namespace ambrelle::SiteLosses {

using namespace Qt::StringLiterals;

namespace {

class Losses {
public:
    explicit Losses(const QSet<QString>& missing)
        : m_missing(missing)
    {
    }

    bool has(const QJsonValue& entry) const
    {
        return m_missing.contains(entry["file"_L1].toString()) || m_missing.contains(entry["webp"_L1].toString());
    }
    QJsonArray rest(const QJsonValue& entries) const
    {
        QJsonArray rest;
        for (const QJsonValue& entry : entries.toArray()) {
            if (!has(entry))
                rest.append(entry);
        }
        return rest;
    }

private:
    const QSet<QString>& m_missing;
};

QJsonArray kindsOf(const QJsonArray& layout)
{
    QStringList kinds;
    for (const QJsonValue& widget : layout)
        kinds.append(widget["kind"_L1].toString());
    kinds.removeDuplicates();
    return QJsonArray::fromStringList(kinds);
}

QJsonArray themesLeft(const QJsonValue& themes, const Losses& losses)
{
    QJsonArray left;
    for (const QJsonValue& each : themes.toArray()) {
        QJsonObject theme = each.toObject();
        const QJsonArray layout = losses.rest(theme["layout"_L1]);
        if (losses.has(theme["preset"_L1]) || losses.has(theme["wallpaper"_L1]) || layout.isEmpty())
            continue;
        theme["kinds"_L1] = kindsOf(layout);
        theme["layout"_L1] = layout;
        theme["sprites"_L1] = losses.rest(theme["sprites"_L1]);
        left.append(theme);
    }
    return left;
}

QJsonArray demosLeft(const QJsonValue& demos, const QStringList& themes, const Losses& losses)
{
    QJsonArray left;
    for (const QJsonValue& each : demos.toArray()) {
        QJsonObject demo = each.toObject();
        const QJsonArray variants = losses.rest(demo["variants"_L1]);
        if (losses.has(demo) || variants.size() < 2 || !themes.contains(demo["theme"_L1].toString()))
            continue;
        demo["variants"_L1] = variants;
        left.append(demo);
    }
    return left;
}

} // namespace

QJsonObject without(QJsonObject catalogue, const QSet<QString>& missing)
{
    if (missing.isEmpty())
        return catalogue;
    const Losses losses(missing);
    const QJsonArray themes = themesLeft(catalogue["themes"_L1], losses);
    QStringList ids;
    for (const QJsonValue& theme : themes)
        ids.append(theme["id"_L1].toString());
    QJsonArray heroes;
    for (const QJsonValue& hero : catalogue["heroThemes"_L1].toArray()) {
        if (ids.contains(hero.toString()))
            heroes.append(hero);
    }
    if (heroes.isEmpty() && !ids.isEmpty())
        heroes.append(ids.first());
    catalogue["accentDemo"_L1] = demosLeft(catalogue["accentDemo"_L1], ids, losses);
    catalogue["heroThemes"_L1] = heroes;
    catalogue["themes"_L1] = themes;
    return catalogue;
}

} // namespace ambrelle::SiteLosses
