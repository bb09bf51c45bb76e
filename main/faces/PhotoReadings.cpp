#include "faces/PhotoReadings.h"

#include "services/PhotoAlbum.h"

#include <QCoreApplication>

namespace ambrelle {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Readings", text);
}

/// Why there is no picture.
QString sentence(const PhotoAlbum& album, const WidgetConfig& config)
{
    if (album.isLoading(config.id))
        return tr("Loading…");
    if (!config.photoFolder)
        return tr("Choose a folder in the widget's settings");
    return album.isEmpty(config.id) ? tr("No images in this folder") : tr("This image cannot be shown");
}

} // namespace

PhotoReading photoReading(const PhotoAlbum& album, const WidgetConfig& config)
{
    PhotoReading reading{.picture = {album.image(config.id)}, .fills = config.photoFill};
    if (!reading.picture)
        reading.notice = {symbol(WidgetKind::photo), sentence(album, config)};
    return reading;
}

} // namespace ambrelle
