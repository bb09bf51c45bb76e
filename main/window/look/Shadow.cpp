// SPDX-License-Identifier: MIT

#include "window/look/Shadow.h"

#include "drawing/Colours.h"
#include "window/look/AppLook.h"

#include <QPainter>

namespace ambrelle {

namespace {

struct ShadowLayer {
    double drop;
    double blur; // points, half of it outside
    double opacity;
};

constexpr ShadowLayer shadowLayers[] = {{1, 2, 0.16}, {4, 14, 0.1}};

} // namespace

void drawShadow(QPainter& painter, const QRectF& card, double corner)
{
    if (AppLook::shared().wishes().highContrast)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const ShadowLayer& layer : shadowLayers) {
        const int steps = static_cast<int>(layer.blur);
        painter.setBrush(faded(Qt::black, layer.opacity / steps));
        for (int step = 0; step < steps; ++step) {
            const double reach = layer.blur - step;
            painter.drawRoundedRect(
                card.adjusted(-reach, layer.drop - reach, reach, layer.drop + reach), corner + reach, corner + reach);
        }
    }
    painter.restore();
}

} // namespace ambrelle
