#pragma once

#include <QString>

namespace ambrelle {

/// Where the program keeps its own files, after the XDG Base Directory Specification. Nothing is made here.
namespace UserFolders {

QString wallpapers(); ///< full-size desktop pictures: the desktop shows them, so they are data, not cache
QString previews(); ///< thumbnails, which can be made again

} // namespace UserFolders

} // namespace ambrelle
