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
    if (!config.photoFolder)
        return tr("Choose a folder in the widget's settings");
    if (album.isEmpty(config.id))
        return tr("No images in this folder");
    return album.isLoading(config.id) ? tr("Loading…") : tr("This image cannot be shown");
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
