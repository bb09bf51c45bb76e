// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "skins/bauhaus/BauhausPieces.h"
#include "skins/bauhaus/BauhausStyle.h"
#include "skins/SceneRecipes.h"

#include <QLineF>

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double discRadius = 90;
constexpr double quarterRadius = 64;
constexpr std::array triangleHeights{44.0, 30.0, 20.0}; // the first that there is room for
constexpr double triangleClear = 4; // of what stands above it
constexpr double joint = 6; // thickness of the bars between items
constexpr double fromEdges = 1; // of the screen

QPainterPath rectanglePath(const QRectF& area)
{
    QPainterPath path;
    path.addRect(area);
    return path;
}

/// A shape behind all items.
void cutting(SceneOrnament& on, const QString& name, const QPainterPath& shape, const QColor& colour)
{
    QPainterPath rest =
        shape.intersected(rectanglePath(on.screen().adjusted(fromEdges, fromEdges, -fromEdges, -fromEdges)));
    for (const SceneItem& item : on.items()) {
        if (item.frame.intersects(rest.boundingRect()))
            rest = rest.subtracted(rectanglePath(item.frame));
    }
    if (rest.isEmpty())
        return;
    on.add(
        name, rest.boundingRect().adjusted(-fromEdges, -fromEdges, fromEdges, fromEdges) & on.screen(),
        [](Canvas& canvas, const QPainterPath& path, const QColor& paint) { bauhaus::flat(canvas, path, paint); }, rest,
        colour);
}

/// The lower left corner of the item that is nearest to that of all items.
QPointF lowerLeft(const SceneOrnament& on)
{
    const auto distance = [corner = on.bounds().bottomLeft()](
                              const SceneItem& item) { return QLineF(item.frame.bottomLeft(), corner).length(); };
    return std::ranges::min(on.items(), {}, distance).frame.bottomLeft();
}

/// It stands on the item like a roof.
void roof(SceneOrnament& on, const SceneItem& item, const QColor& colour)
{
    const double left = item.frame.left() + on.scaled(bauhaus::cornerSmall);
    for (const double wanted : triangleHeights) {
        const double height = on.scaled(wanted);
        const Box box(left, item.frame.top() - height, 1.15 * height, height);
        if (!on.isFree(box.adjusted(0, -on.scaled(triangleClear), 0, 0)))
            continue;
        cutting(on, u"triangle"_s, bauhaus::triangle(box, bauhaus::Pointing::up), colour);
        return;
    }
}

void joints(SceneOrnament& on)
{
    const double thickness = on.scaled(joint);
    for (const SceneGutter& gutter : on.gutters(Qt::Horizontal)) {
        const Box area = gutter.area;
        cutting(on, u"joint"_s, rectanglePath(area.centred(area.width(), thickness)), bauhaus::ink);
    }
}

} // namespace

/// Paper cuttings behind the sheets, and bars that hold these together.
Scene bauhausScene(SceneOrnament on)
{
    const SkinStyle style = bauhaus::makeStyle(on.accent());
    QPainterPath disc;
    disc.addEllipse(squareAbout(on.hero().frame.bottomRight(), on.scaled(discRadius)));
    cutting(on, u"disc"_s, disc, style.accent);
    cutting(on, u"quarter"_s, slice(squareAbout(lowerLeft(on), on.scaled(quarterRadius)), 0.25, 0.25), style.accent2);
    roof(on, on.items().last(), style.accent3);
    joints(on);
    return on.scene();
}

} // namespace ambrelle
