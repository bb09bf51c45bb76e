// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "services/PhotoAlbum.h"

namespace ambrelle {

namespace {

/// Why there is no picture.
QString sentence(const PhotoAlbum& album, const WidgetConfig& config)
{
    if (album.isLoading(config.id))
        return Wording::tr("Loading…");
    if (!config.photoFolder)
        return Wording::tr("Choose a folder in the widget's settings");
    return album.isEmpty(config.id) ? Wording::tr("No images in this folder")
                                    : Wording::tr("This image cannot be shown");
}

QString spokenPicture(const PhotoAlbum& album, const WidgetConfig& config)
{
    const QString name = album.name(config.id);
    return name.isEmpty() ? Wording::tr("Sample picture") : Wording::tr("Picture “%1”").arg(name);
}

} // namespace

PhotoReading photoReading(const PhotoAlbum& album, const WidgetConfig& config)
{
    PhotoReading reading{.picture = {album.image(config.id)}, .fills = config.photoFill};
    if (!reading.picture)
        reading.notice = {symbol(WidgetKind::photo), sentence(album, config)};
    else
        reading.description = spokenPicture(album, config);
    return reading;
}

} // namespace ambrelle
