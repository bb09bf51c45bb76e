// SPDX-License-Identifier: MIT

#include "updates/Release.h"

#include "foundation/Json.h"

#include <QJsonDocument>

#include <algorithm>

namespace ambrelle {

namespace {

bool isVersion(const QString& text)
{
    return text.size() <= Release::longestVersion
        && std::ranges::all_of(text, [](QChar letter) { return letter.isPrint(); });
}

} // namespace

std::optional<Release> Release::decode(const QByteArray& feed)
{
    if (feed.size() > largestFeed)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(feed);
    if (!document.isObject())
        return std::nullopt;
    JsonReader reader(document.object());
    Release release{.version = reader.required<QString>("version"_L1),
        .url = QUrl(reader.required<QString>("url"_L1), QUrl::StrictMode),
        .sha256 = reader.required<QString>("sha256"_L1)};
    if (!reader.ok() || !isVersion(release.version) || !release.url.isValid())
        return std::nullopt;
    return release;
}

} // namespace ambrelle
