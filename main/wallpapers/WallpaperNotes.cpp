// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperNotes.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString previousKey = u"desktopPicture.previous"_s;
const QString currentKey = u"desktopPicture.current"_s;
const QString unfinishedKey = u"desktopPicture.unfinished"_s;
constexpr auto filesKey = "files"_L1;
constexpr auto shownKey = "shown"_L1;
constexpr auto startsKey = "starts"_L1;

QJsonObject objectOf(const QHash<QString, QString>& files)
{
    QJsonObject object;
    for (auto file = files.begin(); file != files.end(); ++file)
        object.insert(file.key(), file.value());
    return object;
}

QHash<QString, QString> filesIn(const QJsonObject& object)
{
    QHash<QString, QString> files;
    for (auto file = object.begin(); file != object.end(); ++file) {
        if (file->isString())
            files.insert(file.key(), file->toString());
    }
    return files;
}

} // namespace

std::optional<QJsonObject> WallpaperNotes::previous() const
{
    return m_defaults.object(previousKey);
}

void WallpaperNotes::setPrevious(const std::optional<QJsonObject>& memory)
{
    if (memory)
        m_defaults.set(previousKey, *memory);
    else
        m_defaults.remove(previousKey);
}

QString WallpaperNotes::current() const
{
    return m_defaults.string(currentKey).value_or(QString());
}

void WallpaperNotes::setCurrent(const QString& file)
{
    if (file.isEmpty())
        m_defaults.remove(currentKey);
    else
        m_defaults.set(currentKey, file);
}

WallpaperNotes::Unfinished WallpaperNotes::unfinished() const
{
    const QJsonObject object = m_defaults.object(unfinishedKey).value_or(QJsonObject());
    return {filesIn(object[filesKey].toObject()), filesIn(object[shownKey].toObject()), object[startsKey].toInt()};
}

void WallpaperNotes::setUnfinished(const Unfinished& unfinished)
{
    if (unfinished.files.isEmpty())
        m_defaults.remove(unfinishedKey);
    else
        m_defaults.set(unfinishedKey,
            QJsonObject{{filesKey, objectOf(unfinished.files)}, {shownKey, objectOf(unfinished.shown)},
                {startsKey, unfinished.starts}});
}

} // namespace ambrelle
