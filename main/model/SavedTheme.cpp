// SPDX-License-Identifier: MIT

#include "model/SavedTheme.h"

#include <QMap>

namespace ambrelle {

Skin SavedTheme::dominantSkin() const
{
    QMap<Skin, int> counts;
    for (const SavedWidget& widget : widgets)
        ++counts[widget.config.skin];
    Skin dominant = Skin::glass;
    int most = 0;
    for (const SavedWidget& widget : widgets) {
        if (const int count = counts.value(widget.config.skin); count > most) {
            most = count;
            dominant = widget.config.skin;
        }
    }
    return dominant;
}

} // namespace ambrelle
