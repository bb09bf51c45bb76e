// SPDX-License-Identifier: MIT

#include "offline/SitePages.h"

#include "model/Skin.h"
#include "offline/ColourFamily.h"
#include "offline/SiteKinds.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double widest = 1.3; // times its height: what is shown in one column

QString capitalised(const QString& word)
{
    return word.left(1).toUpper() + word.mid(1);
}

QJsonObject option(const QString& id)
{
    return {{u"id"_s, id}, {u"title"_s, capitalised(id)}};
}

QString about(ThemeGroup group)
{
    switch (group) {
    case ThemeGroup::concept_: return u"Each a world of its own, down to the last tick mark."_s;
    case ThemeGroup::minimal: return u"Quiet ones, for desks that are worked at."_s;
    case ThemeGroup::modern: return u"Glass, glow and fine numerals."_s;
    }
    return {};
}

double percent(const QJsonValue& part, const QJsonValue& all)
{
    return std::round(part.toDouble() / all.toDouble() * 10'000) / 100;
}

void insertAll(QJsonObject& into, const QJsonObject& from)
{
    for (auto each = from.begin(); each != from.end(); ++each)
        into.insert(each.key(), each.value());
}

} // namespace

SitePages::SitePages(const QJsonObject& catalogue)
    : m_catalogue(catalogue)
{
    for (const QJsonValue& theme : catalogue["themes"_L1].toArray())
        m_themes.append(theme.toObject());
}

QString SitePages::desktopFile(const QString& theme, int width)
{
    return u"themes/%1/preset-%2.webp"_s.arg(theme).arg(width);
}

QList<QString> SitePages::themes() const
{
    QList<QString> ids;
    for (const QJsonObject& theme : m_themes)
        ids.append(theme["id"_L1].toString());
    return ids;
}

QJsonObject SitePages::themeOf(const QString& id) const
{
    const auto found = std::ranges::find_if(m_themes, [&](const QJsonObject& each) { return each["id"_L1] == id; });
    return found == m_themes.end() ? QJsonObject() : *found;
}

QString SitePages::desktop(const QString& id) const
{
    return themeOf(id)["preset"_L1].toObject()["webp"_L1].toString();
}

QJsonObject SitePages::card(const QJsonObject& theme) const
{
    const QString id = theme["id"_L1].toString();
    const QString accent = theme["accent"_L1].toString();
    const QJsonObject colors = theme["colors"_L1].toObject();
    const QJsonObject preset = theme["preset"_L1].toObject();
    const QString tone = theme["light"_L1].toBool() ? u"light"_s : u"dark"_s;
    const QString group = theme["group"_L1].toString();
    QJsonArray dots;
    for (const QJsonValue& color : {theme["accent"_L1], colors["ground"_L1], colors["ink"_L1], colors["wallpaper"_L1]})
        dots.append(QJsonObject{{u"color"_s, color}});
    return {{u"id"_s, id}, {u"title"_s, theme["title"_L1]}, {u"tagline"_s, theme["tagline"_L1]}, {u"tone"_s, tone},
        {u"toneTitle"_s, capitalised(tone)}, {u"group"_s, group}, {u"groupTitle"_s, capitalised(group)},
        {u"accent"_s, accent}, {u"colour"_s, colourFamily(QColor(accent))}, {u"wall"_s, colors["wallpaper"_L1]},
        {u"dots"_s, dots}, {u"small"_s, desktopFile(id, smallWidth)}, {u"medium"_s, desktopFile(id, mediumWidth)},
        {u"large"_s, preset["webp"_L1]}, {u"largeWidth"_s, preset["webpWidth"_L1]},
        {u"largeHeight"_s, preset["webpHeight"_L1]}, {u"first"_s, false}};
}

QJsonValue SitePages::demo(const QJsonObject& theme) const
{
    const QJsonArray demos = m_catalogue["accentDemo"_L1].toArray();
    const auto found =
        std::ranges::find_if(demos, [&](const QJsonValue& each) { return each["theme"_L1] == theme["id"_L1]; });
    const std::optional<Skin> skin = parse<Skin>(theme["id"_L1].toString());
    if (found == demos.end() || !skin)
        return QJsonValue();
    QJsonArray variants = (*found)["variants"_L1].toArray();
    for (qsizetype i = 0; i < variants.size(); ++i) {
        QJsonObject variant = variants[i].toObject();
        variant["first"_L1] = i == 0;
        variants[i] = variant;
    }
    const QSizeF face = SiteKinds::pictureSize(baseSize(sizeClass(*skin, WidgetKind::clock)), m_catalogue);
    const QJsonObject wallpaper = theme["wallpaper"_L1].toObject();
    return QJsonObject{{u"id"_s, theme["id"_L1]}, {u"title"_s, theme["title"_L1]}, {u"color"_s, (*found)["color"_L1]},
        {u"variants"_s, variants}, {u"faceWidth"_s, qRound(face.width())}, {u"faceHeight"_s, qRound(face.height())},
        {u"behind"_s, wallpaper["webp"_L1]}, {u"behindWidth"_s, wallpaper["webpWidth"_L1]},
        {u"behindHeight"_s, wallpaper["webpHeight"_L1]}};
}

QJsonArray SitePages::heroes() const
{
    QJsonArray heroes;
    for (const QJsonValue& id : m_catalogue["heroThemes"_L1].toArray()) {
        QJsonObject hero = card(themeOf(id.toString()));
        hero["first"_L1] = heroes.isEmpty();
        heroes.append(hero);
    }
    return heroes;
}

QJsonArray SitePages::groups() const
{
    QJsonArray groups;
    for (const ThemeGroup group : allCases<ThemeGroup>()) {
        QJsonArray cards;
        for (const QJsonObject& theme : m_themes) {
            if (theme["group"_L1].toString() == rawValue(group))
                cards.append(card(theme));
        }
        QJsonObject entry = option(rawValue(group));
        entry["about"_L1] = about(group);
        entry["themes"_L1] = cards;
        if (!cards.isEmpty())
            groups.append(entry);
    }
    return groups;
}

QJsonArray SitePages::tones() const
{
    const auto isLight = [](const QJsonObject& theme) { return theme["light"_L1].toBool(); };
    QJsonArray tones;
    if (std::ranges::any_of(m_themes, isLight))
        tones.append(option(u"light"_s));
    if (!std::ranges::all_of(m_themes, isLight))
        tones.append(option(u"dark"_s));
    return tones;
}

QJsonArray SitePages::colours() const
{
    QStringList used;
    for (const QJsonObject& theme : m_themes)
        used.append(colourFamily(QColor(theme["accent"_L1].toString())));
    QJsonArray colours;
    for (const QString& name : colourFamilies()) {
        if (used.contains(name))
            colours.append(option(name));
    }
    return colours;
}

QJsonArray SitePages::widgets(const QJsonObject& theme) const
{
    const QJsonObject canvas = m_catalogue["canvas"_L1].toObject();
    QJsonArray widgets;
    for (const QJsonValue& each : theme["layout"_L1].toArray()) {
        QJsonObject widget = each.toObject();
        const QSizeF picture =
            SiteKinds::pictureSize({widget["width"_L1].toDouble(), widget["height"_L1].toDouble()}, m_catalogue);
        insertAll(widget,
            {{u"number"_s, widgets.size() + 1}, {u"blurb"_s, m_catalogue["blurb"_L1][each["kind"_L1].toString()]},
                {u"left"_s, percent(each["x"_L1], canvas["width"_L1])},
                {u"top"_s, percent(each["y"_L1], canvas["height"_L1])},
                {u"across"_s, percent(each["width"_L1], canvas["width"_L1])},
                {u"down"_s, percent(each["height"_L1], canvas["height"_L1])},
                {u"width"_s, qRound(each["width"_L1].toDouble())}, {u"height"_s, qRound(each["height"_L1].toDouble())},
                {u"isWide"_s, picture.width() > picture.height() * widest},
                {u"pictureWidth"_s, qRound(picture.width())}, {u"pictureHeight"_s, qRound(picture.height())}});
        widgets.append(widget);
    }
    return widgets;
}

QJsonArray SitePages::palette(const QJsonObject& theme) const
{
    const QJsonObject colors = theme["colors"_L1].toObject();
    QJsonArray palette;
    const auto add = [&](const QString& name, const QJsonValue& color) {
        palette.append(QJsonObject{{u"name"_s, name}, {u"color"_s, color}});
    };
    add(u"Accent"_s, theme["accent"_L1]);
    add(u"Ground"_s, colors["ground"_L1]);
    add(u"Ink"_s, colors["ink"_L1]);
    add(u"Soft ink"_s, colors["soft"_L1]);
    add(u"Wallpaper"_s, colors["wallpaper"_L1]);
    for (const QJsonValue& color : colors["scene"_L1].toArray())
        add(u"Scene"_s, color);
    return palette;
}

QJsonObject SitePages::index() const
{
    // Another theme than the one above it on the page.
    QJsonValue shown;
    for (const QJsonValue& id : m_catalogue["heroThemes"_L1].toArray()) {
        const QJsonValue candidate = demo(themeOf(id.toString()));
        if (candidate.isObject())
            shown = candidate;
    }
    return {{u"root"_s, QString()}, {u"count"_s, m_themes.size()}, {u"heroes"_s, heroes()}, {u"groups"_s, groups()},
        {u"tones"_s, tones()}, {u"colours"_s, colours()}, {u"kinds"_s, SiteKinds(m_catalogue).table()},
        {u"demo"_s, shown}};
}

QJsonObject SitePages::theme(const QString& id) const
{
    const QJsonObject theme = themeOf(id);
    QJsonObject page = card(theme);
    const QJsonArray widgets = this->widgets(theme);
    QStringList names;
    for (const QJsonValue& widget : widgets)
        names.append(widget["title"_L1].toString());
    const QJsonObject wallpaper = theme["wallpaper"_L1].toObject();
    insertAll(page,
        {{u"root"_s, u"../"_s}, {u"theme"_s, theme["title"_L1]}, {u"widgets"_s, widgets},
            {u"widgetNames"_s, names.join(u", "_s)}, {u"demo"_s, demo(theme)}, {u"palette"_s, palette(theme)},
            {u"wallpaper"_s, wallpaper["webp"_L1]}, {u"wallpaperWidth"_s, wallpaper["webpWidth"_L1]},
            {u"wallpaperHeight"_s, wallpaper["webpHeight"_L1]}, {u"wallpaperFile"_s, wallpaper["file"_L1]},
            {u"wallpaperFullWidth"_s, wallpaper["width"_L1]}, {u"wallpaperFullHeight"_s, wallpaper["height"_L1]}});
    const QJsonObject partner = themeOf(theme["partner"_L1].toString());
    if (!partner.isEmpty()) {
        QJsonObject entry = card(partner);
        entry["side"_L1] = partner["light"_L1].toBool() ? u"By day"_s : u"By night"_s;
        page["partner"_L1] = entry;
    }
    page["others"_L1] = m_themes.size() > 1;
    const qsizetype place = m_themes.indexOf(theme);
    if (place > 0)
        page["previous"_L1] = card(m_themes[place - 1]);
    if (place + 1 < m_themes.size())
        page["next"_L1] = card(m_themes[place + 1]);
    return page;
}

} // namespace ambrelle
