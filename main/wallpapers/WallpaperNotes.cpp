// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperNotes.h"

#include "foundation/UserDefaults.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString previousKey = u"desktopPicture.previous"_s;
const QString currentKey = u"desktopPicture.current"_s;

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

} // namespace ambrelle
