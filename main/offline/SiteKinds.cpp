// SPDX-License-Identifier: MIT

#include "offline/SiteKinds.h"

#include <algorithm>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype themesPerKind = 3; // that are named in the table

QSizeF sizeIn(const QJsonValue& frame)
{
    return {frame["width"_L1].toDouble(), frame["height"_L1].toDouble()};
}

} // namespace

SiteKinds::SiteKinds(const QJsonObject& catalogue)
    : m_catalogue(catalogue)
{
    for (const QJsonValue& theme : catalogue["themes"_L1].toArray())
        m_themes.append(theme.toObject());
}

QSizeF SiteKinds::pictureSize(const QSizeF& frame, const QJsonObject& catalogue)
{
    const double margin = 2 * catalogue["canvas"_L1]["margin"_L1].toDouble();
    return frame + QSizeF(margin, margin);
}

QString SiteKinds::file(const QString& kind)
{
    return u"assets/img/kinds/%1.webp"_s.arg(kind);
}

QList<SiteKinds::Picture> SiteKinds::pictures() const
{
    QList<Picture> pictures;
    QList<int> uses(m_themes.size(), 0);
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        std::optional<Picture> best;
        for (qsizetype theme = 0; theme < m_themes.size(); ++theme) {
            if (best && uses[theme] >= uses[best->theme])
                continue;
            const QJsonArray layout = m_themes[theme]["layout"_L1].toArray();
            const auto isOfKind = [&](const QJsonValue& widget) { return widget["kind"_L1] == rawValue(kind); };
            const auto found = std::ranges::find_if(layout, isOfKind);
            if (found != layout.end()) {
                best = Picture{
                    rawValue(kind), theme, (*found)["file"_L1].toString(), pictureSize(sizeIn(*found), m_catalogue)};
            }
        }
        if (best) {
            ++uses[best->theme];
            pictures.append(*best);
        }
    }
    return pictures;
}

QJsonArray SiteKinds::some(const QList<QJsonObject>& having, qsizetype number) const
{
    const qsizetype count = std::min(themesPerKind, having.size());
    QJsonArray named;
    for (qsizetype i = 0; i < count; ++i) {
        const QJsonObject& theme = having[(number * 5 + i * having.size() / count) % having.size()];
        named.append(QJsonObject{{u"id"_s, theme["id"_L1]}, {u"title"_s, theme["title"_L1]}});
    }
    return named;
}

QJsonArray SiteKinds::table() const
{
    const QList<Picture> shown = pictures();
    QJsonArray kinds;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        QList<QJsonObject> having;
        for (const QJsonObject& theme : m_themes) {
            if (theme["kinds"_L1].toArray().contains(QString(rawValue(kind))))
                having.append(theme);
        }
        const QJsonArray named = some(having, kinds.size());
        QJsonObject entry{{u"id"_s, rawValue(kind)}, {u"title"_s, title(kind)},
            {u"blurb"_s, m_catalogue["blurb"_L1][rawValue(kind)]}, {u"few"_s, named}};
        if (having.size() > named.size())
            entry["more"_L1] = having.size() - named.size();
        const auto found = std::ranges::find(shown, rawValue(kind), &Picture::kind);
        if (found != shown.end()) {
            const QJsonObject& theme = m_themes[found->theme];
            entry["picture"_L1] = QJsonObject{{u"file"_s, file(found->kind)}, {u"kind"_s, title(kind)},
                {u"title"_s, theme["title"_L1]}, {u"wall"_s, theme["colors"_L1]["wallpaper"_L1]},
                {u"width"_s, qRound(found->size.width())}, {u"height"_s, qRound(found->size.height())}};
        }
        kinds.append(entry);
    }
    return kinds;
}

} // namespace ambrelle
