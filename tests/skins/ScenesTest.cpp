// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

#include "drawing/SeededRandom.h"
#include "model/Composition.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ostream>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

struct Layout {
    QList<SceneItem> items;
    QSizeF size;
};

/// Anything a user can make of a desktop: from one widget to twenty, of all sizes, apart, over each other, across the
/// screen's edges; every third in a grid.
Layout randomLayout(std::uint64_t seed)
{
    SeededRandom random{seed};
    constexpr QSizeF sizes[]{{800, 600}, {1440, 900}, {1920, 1080}};
    constexpr double scales[]{0.5, 0.75, 1, 1.25, 1.5};
    constexpr double gaps[]{0, 6, 10, 20, 60};
    Layout layout{{}, sizes[random.next(3)]};
    const bool isGrid = seed % 3 == 0;
    const double gap = gaps[random.next(5)];
    const int count = 1 + static_cast<int>(random.next(seed % 4 == 0 ? 3 : 20));
    for (int index = 0; index < count; ++index) {
        const double scale = scales[isGrid ? 2 : random.next(5)];
        const QSizeF size(170 * scale * (random.next(3) == 0 ? 350.0 / 170 : 1), 170 * scale);
        const QPointF place = isGrid
            ? QPointF(40 + index % 5 * (170 + gap), 20 + std::floor(index / 5.0) * (170 + gap))
            : QPointF(random.in(-100, layout.size.width() - 60), random.in(-100, layout.size.height() - 60));
        layout.items.append({allCases<WidgetKind>()[static_cast<qsizetype>(random.next(20))], {place, size}});
    }
    return layout;
}

QList<Layout> layouts(Skin skin)
{
    QList<Layout> all;
    for (const QSizeF& size : {QSizeF(1440, 900), QSizeF(1920, 1080)}) {
        Layout own{{}, size};
        for (const PlacedWidget& widget : Composition::frames(skin, size))
            own.items.append({widget.config.kind, widget.frame});
        all.append(own);
    }
    all.append({{{WidgetKind::clock, {0, 0, 350, 170}}}, {1440, 900}}); // touching corners
    all.append({{{WidgetKind::cpu, {1270, 730, 170, 170}}}, {1440, 900}});
    for (std::uint64_t seed = 1; seed <= 24; ++seed)
        all.append(randomLayout(seed));
    return all;
}

constexpr int spare = 64; // pixels round the screen

QImage pictureOf(const Scene& scene, const QSizeF& size, double time = 0)
{
    QImage image(size.toSize() + QSize(2 * spare, 2 * spare), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(spare, spare);
    scene.draw(painter, QRectF(-spare, -spare, image.width(), image.height()), time);
    return image;
}

/// The strongest opacity inside a rectangle of the screen.
int strongest(const QImage& image, const QRect& area)
{
    const QRect pixels = area.translated(spare, spare) & image.rect();
    int most = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            most = std::max(most, qAlpha(line[x]));
    }
    return most;
}

/// Moments at which a mark looks other than at rest.
QList<double> momentsOf(const Motion& motion)
{
    constexpr double start = 3600;
    QList<double> moments;
    for (double time = start; moments.size() < 3; time += 1 / motion.fps) {
        if (motion.period <= 0 || motion.phase(time))
            moments.append(time);
    }
    return moments;
}

/// What an item's face is sure to cover: two rectangles that leave its corners out where those are round.
QList<QRect> coveredBy(const SceneItem& item, double corner)
{
    const double radius = corner * item.frame.height() / 170 + (corner > 0 ? 2 : 0);
    const auto inset = [&](double x, double y) {
        return item.frame.adjusted(1 + x, 1 + y, -1 - x, -1 - y).toAlignedRect().adjusted(1, 1, -1, -1);
    };
    return {inset(radius, 0), inset(0, radius)};
}

/// The corners beside whose curves a skin's marks may go on: those of instruments that are let into a panel.
double openCorner(Skin skin)
{
    return skin == Skin::cockpit ? 10 : 0;
}

/// Whether nothing is painted outside the places of the marks.
bool staysInPlace(const Scene& scene, QImage image)
{
    QPainter painter(&image);
    painter.translate(spare, spare);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const SceneSprite& sprite : scene.sprites)
        for (const QRectF& area : sprite.areas())
            painter.fillRect(area.toAlignedRect(), Qt::black);
    painter.end();
    return strongest(image, image.rect().translated(-spare, -spare)) == 0;
}

class ScenesTest : public testing::TestWithParam<Skin> { };

TEST_P(ScenesTest, LeavesItemsAloneAndStaysOnTheScreen)
{
    for (const auto& [items, size] : layouts(GetParam())) {
        const Scene scene = sceneOf(GetParam(), items, size, std::nullopt);
        EXPECT_EQ(scene, sceneOf(GetParam(), items, size, std::nullopt));
        if (scene.sprites.isEmpty())
            continue;
        const QImage image = pictureOf(scene, size);
        EXPECT_EQ(image, pictureOf(sceneOf(GetParam(), items, size, std::nullopt), size));
        const QRectF screen({0, 0}, size);
        for (const SceneSprite& sprite : scene.sprites)
            EXPECT_TRUE(screen.contains(sprite.place())) << qPrintable(sprite.name());
        EXPECT_TRUE(staysInPlace(scene, image));
        for (const SceneItem& item : items) {
            for (const QRect& inside : coveredBy(item, openCorner(GetParam()))) {
                EXPECT_LE(strongest(image, inside), qCeil(255 * SceneOrnament::strong) + 1)
                    << qPrintable(rawValue(item.kind)) << " at " << item.frame.x() << ", " << item.frame.y();
            }
        }
    }
}

/// The largest in any channel of any pixel; where another shape cuts what is filled colours are rounded another way.
int difference(const QImage& one, const QImage& other)
{
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        const uchar* first = one.constScanLine(y);
        const uchar* second = other.constScanLine(y);
        for (int x = 0; x < one.width() * 4; ++x)
            most = std::max(most, std::abs(first[x] - second[x]));
    }
    return most;
}

TEST_P(ScenesTest, TellsAllThatADraggedWidgetChanges)
{
    Layout layout = layouts(GetParam()).first();
    Scene shown = sceneOf(GetParam(), layout.items, layout.size, std::nullopt);
    QImage picture = pictureOf(shown, layout.size);
    for (const auto& [from, to] :
        {std::pair(QPointF(0, 0), QPointF(7, 3)), {{7, 3}, {160, -40}}, {{160, -40}, {900, 300}}}) {
        layout.items.last().frame.translate(to - from);
        const Scene next = sceneOf(GetParam(), layout.items, layout.size, QColor(Qt::green));
        QPainter painter(&picture);
        painter.translate(spare, spare);
        QRegion changed;
        for (const QRectF& area : Scene::changes(shown, next))
            changed += area.toAlignedRect();
        painter.setClipRegion(changed);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(changed.boundingRect(), Qt::black);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        next.draw(painter, changed.boundingRect());
        painter.end();
        EXPECT_LE(difference(picture, pictureOf(next, layout.size)), 4) << to.x();
        shown = next;
    }
}

TEST_P(ScenesTest, MovesInsideItsAreasAndOutsideItems)
{
    for (const auto& [items, size] : layouts(GetParam()).first(12)) {
        const Scene scene = sceneOf(GetParam(), items, size, std::nullopt);
        if (scene.moving().isEmpty())
            continue;
        const QImage rest = pictureOf(scene, size);
        for (const double time : momentsOf(scene.moving().first().motion)) {
            QImage picture = pictureOf(scene, size, time);
            for (const SceneItem& item : items) {
                for (const QRect& inside : coveredBy(item, 0))
                    EXPECT_LE(strongest(picture, inside), qCeil(255 * SceneOrnament::strong) + 1) << time;
            }
            QPainter painter(&picture);
            painter.setCompositionMode(QPainter::CompositionMode_Source);
            for (const Canvas::MovingArea& each : scene.moving()) {
                const QRect pixels = each.area.toAlignedRect().translated(spare, spare);
                painter.drawImage(pixels, rest, pixels);
            }
            painter.end();
            EXPECT_EQ(picture, rest) << time;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Skins, ScenesTest, testing::ValuesIn(allCases<Skin>()),
    [](const auto& tested) { return rawValue(tested.param).toString().toStdString(); });

/// Those that reach over the whole desktop, of 1440 x 900 points, while its last widget is dragged.
TEST(SceneRecipes, ADragChangesLittleOfALargeScene)
{
    constexpr int steps = 10;
    for (const auto& [skin, most] :
        {std::pair(Skin::cockpit, 200'000), {Skin::groove, 120'000}, {Skin::cork, 40'000}, {Skin::polar, 10'000}}) {
        Layout layout = layouts(skin).first();
        int total = 0;
        for (int step = 0; step < steps; ++step) {
            const Scene before = sceneOf(skin, layout.items, layout.size, std::nullopt);
            layout.items.last().frame.translate(2, 1);
            QRegion changed;
            for (const QRectF& area : Scene::changes(before, sceneOf(skin, layout.items, layout.size, std::nullopt)))
                changed += area.toAlignedRect();
            for (const QRect& part : changed)
                total += part.width() * part.height();
        }
        EXPECT_GT(total, 0);
        EXPECT_LT(total / steps, most) << qPrintable(rawValue(skin));
    }
}

TEST(SceneRecipes, SomeScenesMove)
{
    QList<Skin> moving;
    for (const Skin skin : allCases<Skin>()) {
        const auto [items, size] = layouts(skin).first();
        const Scene scene = sceneOf(skin, items, size, std::nullopt);
        if (scene.moving().isEmpty())
            continue;
        moving.append(skin);
        const QImage rest = pictureOf(scene, size);
        const QList<double> moments = momentsOf(scene.moving().first().motion);
        EXPECT_TRUE(std::ranges::any_of(moments, [&](double time) { return pictureOf(scene, size, time) != rest; }))
            << qPrintable(rawValue(skin));
    }
    EXPECT_EQ(moving, (QList{Skin::neon, Skin::quest, Skin::pulse}));
}

/// The places of the marks of one name.
QList<QRectF> placesOf(const Scene& scene, const QString& name)
{
    QList<QRectF> places;
    for (const SceneSprite& sprite : scene.sprites) {
        if (sprite.name().section(u'-', 0, -2) == name)
            places.append(sprite.place());
    }
    return places;
}

TEST(SceneRecipes, AVineLeadsFromOneWidgetToAnotherFarAway)
{
    const QRectF left(60, 40, 350, 170);
    const QRectF right(1690, 870, 170, 170);
    const Scene scene =
        sceneOf(Skin::grove, {{WidgetKind::clock, left}, {WidgetKind::cpu, right}}, {1920, 1080}, std::nullopt);
    const QList<QRectF> vines = placesOf(scene, u"vine"_s);
    ASSERT_EQ(vines.size(), 1);
    for (const QRectF& item : {left, right})
        EXPECT_TRUE(item.adjusted(-6, -6, 6, 6).intersects(vines.first()));
}

TEST(SceneRecipes, NothingEndsJustBeforeTheEdgeOfTheScreen)
{
    const QSizeF size(1440, 900);
    const auto scene = [&](Skin skin, const QList<QRectF>& frames) {
        QList<SceneItem> items;
        for (const QRectF& frame : frames)
            items.append({items.isEmpty() ? WidgetKind::clock : WidgetKind::cpu, frame});
        return sceneOf(skin, items, size, std::nullopt);
    };
    const auto clockAt = [](double x, double y) { return QRectF(x, y, 350, 170); };

    for (const QRectF& ribbon : placesOf(scene(Skin::aero, {clockAt(200, 100), {900, 600, 170, 170}}), u"ribbon"_s))
        EXPECT_EQ(ribbon.right(), size.width());
    const QRectF atEdge(size.width() - 170, 500, 170, 170);
    EXPECT_EQ(placesOf(scene(Skin::neon, {clockAt(500, 100), atEdge}), u"side-tube"_s).size(), 0) << "no room to turn";
    EXPECT_EQ(placesOf(scene(Skin::neon, {clockAt(500, 100), atEdge.translated(-60, 0)}), u"side-tube"_s).size(), 1);
    EXPECT_EQ(placesOf(scene(Skin::cockpit, {clockAt(0, 300)}), u"sheet"_s).first().left(), 0) << "no edge of a sheet";
    for (int top = 0; top < 80; ++top) {
        const auto isAbove = [top](const QRectF& rail) { return rail.top() < top; };
        const QList<QRectF> rails = placesOf(scene(Skin::carbon, {clockAt(500, top)}), u"rail"_s);
        EXPECT_NE(std::ranges::count_if(rails, isAbove), 1) << "one rail of two with the clock at " << top;
    }
}

TEST(SceneRecipes, NothingIsDrawnAroundNothing)
{
    for (const Skin skin : allCases<Skin>())
        EXPECT_TRUE(sceneOf(skin, {}, {1440, 900}).sprites.isEmpty()) << qPrintable(rawValue(skin));
}

} // namespace
