// SPDX-License-Identifier: MIT

#include "scenes/SceneChoice.h"

#include <QMap>

namespace ambrelle::SceneChoice {

Skin skin(const QList<WidgetConfig>& widgets, Skin fallback)
{
    QMap<Skin, int> counts;
    for (const WidgetConfig& widget : widgets)
        ++counts[widget.skin];
    Skin chosen = fallback;
    int most = 0;
    for (const WidgetConfig& widget : widgets) {
        if (const int count = counts.value(widget.skin); count > most) {
            most = count;
            chosen = widget.skin;
        }
    }
    return chosen;
}

QList<SceneItem> items(const QList<WidgetConfig>& widgets, Skin skin, const QRectF& screen)
{
    QList<SceneItem> items;
    for (const WidgetConfig& widget : widgets) {
        const QRectF frame = widget.frame();
        if (widget.skin == skin && frame.intersects(screen))
            items.append({widget.kind,
                {frame.left() - screen.left(), screen.bottom() - frame.bottom(), frame.width(), frame.height()}});
    }
    return items;
}

} // namespace ambrelle::SceneChoice
