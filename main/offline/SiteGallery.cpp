// SPDX-License-Identifier: MIT

#include "offline/SiteGallery.h"

namespace ambrelle::SiteGallery {

bool writeGallery(const QString& folder, const QJsonObject& themes, const WriteFile& write)
{
    Q_UNUSED(folder)
    Q_UNUSED(themes)
    Q_UNUSED(write)
    return true;
}

} // namespace ambrelle::SiteGallery
