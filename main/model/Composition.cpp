// SPDX-License-Identifier: MIT

#include "model/Composition.h"

#include "model/CompositionPresets.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ambrelle {

namespace {

constexpr double cellPitch = 180;
// On an area no larger than the margins the widgets stay visible, and their records readable.
constexpr double leastFactor = 0.05;

PlacedWidget natural(const Spot& spot, Skin skin)
{
    WidgetConfig config(spot.kind, skin, spot.scale);
    const QRectF rect(QPointF(spot.x, spot.y), config.size());
    return {std::move(config), rect};
}

QRectF unionOf(const QList<PlacedWidget>& widgets)
{
    QRectF all;
    for (const PlacedWidget& widget : widgets)
        all |= widget.frame;
    return all;
}

double fitting(const QSizeF& design, const QSizeF& size)
{
    const double horizontal = (size.width() - 2 * Composition::marginX) / design.width();
    const double vertical = (size.height() - 2 * Composition::marginY) / design.height();
    return std::max(leastFactor, std::min({1.0, horizontal, vertical}));
}

Composition fromSpots(std::span<const Spot> spots)
{
    return {QList<Spot>(spots.begin(), spots.end())};
}

} // namespace

const Composition& Composition::preset(Skin skin)
{
    static const auto presets = [] {
        std::array<Composition, allCases<Skin>().size()> all;
        for (const Skin each : allCases<Skin>())
            all[static_cast<std::size_t>(each)] = fromSpots(presetSpots(each));
        return all;
    }();
    return presets[static_cast<std::size_t>(skin)];
}

Composition Composition::tiled(const QList<Cell>& cells)
{
    Composition composition;
    for (const Cell& cell : cells)
        composition.spots.append({cell.kind, cell.column * cellPitch, cell.row * cellPitch});
    return composition;
}

QList<PlacedWidget> Composition::frames(Skin skin, const QSizeF& size)
{
    QList<PlacedWidget> widgets;
    for (const Spot& spot : preset(skin).spots)
        widgets.append(natural(spot, skin));
    const QRectF design = unionOf(widgets);
    const double k = fitting(design.size(), size);
    const QPointF middle(size.width() / 2, size.height() / 2);
    for (PlacedWidget& widget : widgets) {
        const QPointF centre = middle + k * (widget.frame.center() - design.center());
        widget.config.fit = k;
        widget.frame.setSize(widget.config.size());
        widget.frame.moveCenter(centre);
    }
    return widgets;
}

QList<WidgetConfig> Composition::widgets(Skin skin, const QRectF& area)
{
    QList<WidgetConfig> placed;
    for (PlacedWidget& widget : frames(skin, area.size())) {
        const double fromTop = widget.frame.y() + widget.frame.height();
        widget.config.origin = {area.x() + widget.frame.x(), area.y() + area.height() - fromTop};
        placed.append(std::move(widget.config));
    }
    return placed;
}

} // namespace ambrelle
