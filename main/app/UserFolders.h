// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// Where the program keeps its own files, as the XDG base directories say. Nothing is made here.
namespace UserFolders {

QString wallpapers(); ///< full-size desktop pictures: the desktop shows them, so they are data, not cache
QString previews(); ///< thumbnails, which can be made again
QString settings(); ///< everything that the user settled

} // namespace UserFolders

} // namespace ambrelle
