// SPDX-License-Identifier: MIT

#include "app/UserFolders.h"

#include "app/Information.h"

#include <QStandardPaths>

namespace ambrelle::UserFolders {

using namespace Qt::StringLiterals;

QString wallpapers()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/ambrelle/Wallpapers"_s;
}

QString previews()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u'/'
        + Information::read().identifier + u"/Previews"_s;
}

QString settings()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/ambrelle"_s;
}

} // namespace ambrelle::UserFolders
