// SPDX-License-Identifier: MIT

#include "platform/linux/bus/MprisAnswer.h"

#include "foundation/ForeignText.h"

#include <QDBusArgument>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestAddress = 4096;
constexpr double microsecond = 1e-6; // seconds
constexpr double longestTime = 100 * 3600; // seconds; what players tell beyond is no time but a mark for "unknown"

double seconds(const QVariant& microseconds)
{
    bool isNumber = false;
    const double time = microseconds.toDouble(&isNumber) * microsecond;
    return isNumber && time >= 0 && time <= longestTime ? time : 0;
}

QString titleOf(const QVariantMap& metadata)
{
    QString title = foreignText(metadata.value(u"xesam:title"_s).toString());
    if (!title.isEmpty())
        return title;
    return foreignText(QUrl(metadata.value(u"xesam:url"_s).toString().left(longestAddress)).fileName());
}

QString pictureOf(const QVariantMap& metadata)
{
    const QString address = metadata.value(u"mpris:artUrl"_s).toString();
    return address.size() <= longestAddress && !address.contains(u'\n') ? address : QString();
}

} // namespace

QVariantMap busDictionary(const QVariant& value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return value.toMap();
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == "a{sv}"_L1 ? qdbus_cast<QVariantMap>(argument) : QVariantMap();
}

MprisAnswer mprisAnswer(const QVariantMap& properties, const QString& name)
{
    const QString status = properties.value(u"PlaybackStatus"_s).toString();
    const QVariantMap metadata = busDictionary(properties.value(u"Metadata"_s));
    const bool playing = status == "Playing"_L1;
    QString title = titleOf(metadata);
    if (title.isEmpty() && playing)
        title = foreignText(name);
    if ((!playing && status != "Paused"_L1) || title.isEmpty())
        return {};

    MprisAnswer answer{.track = PlayerTrack{.isPlaying = playing,
                           .title = title,
                           .artist = foreignText(metadata.value(u"xesam:artist"_s).toStringList().join(", "_L1)),
                           .duration = seconds(metadata.value(u"mpris:length"_s)),
                           .position = seconds(properties.value(u"Position"_s)),
                           .picture = pictureOf(metadata)}};
    bool hasRate = false;
    const double rate = properties.value(u"Rate"_s).toDouble(&hasRate);
    if (hasRate && std::isfinite(rate))
        answer.rate = rate;
    return answer;
}

} // namespace ambrelle
