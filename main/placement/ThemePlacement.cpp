// SPDX-License-Identifier: MIT

#include "placement/ThemePlacement.h"

#include "placement/ScreenPlacement.h"

#include <cmath>

namespace ambrelle::ThemePlacement {

namespace {

constexpr double sameCorner = 0.01; // points: parts went through decimal text

} // namespace

SavedWidget saved(const WidgetConfig& widget, const ScreenInfo& screen)
{
    const QRectF area = ScreenPlacement::room(screen);
    const QPointF corner = widget.origin - area.topLeft();
    return {widget, corner.x() / area.width(), corner.y() / area.height()};
}

QList<StoredWidget> placed(const SavedTheme& theme, const ScreenInfo& screen)
{
    const QRectF area = ScreenPlacement::room(screen);
    QList<StoredWidget> widgets;
    for (const SavedWidget& each : theme.widgets) {
        WidgetConfig config = each.config;
        const QPointF corner = area.topLeft() + QPointF(each.fx * area.width(), each.fy * area.height());
        const bool isOldPlace = std::hypot(corner.x() - config.origin.x(), corner.y() - config.origin.y()) < sameCorner;
        if (!isOldPlace) // else it is exactly there
            config.origin = ScreenPlacement::movedInto({corner, config.size()}, area).topLeft();
        config.display = screen.id;
        config.displayOffset = config.origin - screen.frame.topLeft();
        widgets.append({config});
    }
    return widgets;
}

} // namespace ambrelle::ThemePlacement
