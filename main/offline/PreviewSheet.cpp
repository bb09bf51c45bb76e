// SPDX-License-Identifier: MIT

#include "offline/PreviewSheet.h"

#include <algorithm>

namespace ambrelle {

PreviewSheet PreviewSheet::of(Skin skin)
{
    PreviewSheet sheet;
    double x = 0;
    double y = 0;
    double tallest = 0;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const QSizeF size = baseSize(sizeClass(skin, kind));
        if (x > 0 && x + size.width() > rowWidth) {
            x = 0;
            y += tallest + gap;
            tallest = 0;
        }
        sheet.places.append({kind, QRectF({x + margin, y + margin}, size)});
        x += size.width() + gap;
        tallest = std::max(tallest, size.height());
    }
    sheet.size = {rowWidth + 2 * margin, y + tallest + 2 * margin};
    return sheet;
}

} // namespace ambrelle
