#pragma once

#include "faces/Readings.h"
#include "model/WidgetConfig.h"

namespace ambrelle {

class PhotoAlbum;

/// The picture of that widget, or why there is none.
PhotoReading photoReading(const PhotoAlbum& album, const WidgetConfig& config);

} // namespace ambrelle
