// SPDX-License-Identifier: MIT

#include "scenes/LineCut.h"
#include "scenes/SceneChoice.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using enum WidgetKind;

QPainterPath straight(const QPolygonF& points)
{
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

QList<QList<WidgetKind>> kindsOf(const QList<QList<SceneItem>>& bands)
{
    QList<QList<WidgetKind>> kinds;
    for (const QList<SceneItem>& band : bands) {
        kinds.append(QList<WidgetKind>());
        for (const SceneItem& item : band)
            kinds.last().append(item.kind);
    }
    return kinds;
}

/// A wide clock over two small widgets, and a tall photo at their right.
const QList<SceneItem> desk{{cpu, {300, 290, 170, 170}}, {clock, {110, 100, 360, 170}}, {memory, {110, 290, 170, 170}},
    {photo, {490, 100, 170, 360}}};

TEST(SceneLayoutTest, FindsRowsColumnsAndTheHero)
{
    const SceneLayout layout(desk, {1440, 900});
    EXPECT_EQ(layout.hero().kind, clock) << "as large as the photo, and it tells the time";
    EXPECT_EQ(layout.bounds(), QRectF(110, 100, 550, 360));
    EXPECT_EQ(kindsOf(layout.rows()), (QList<QList<WidgetKind>>{{clock}, {photo}, {memory, cpu}}));
    EXPECT_EQ(kindsOf(layout.columns()), (QList<QList<WidgetKind>>{{memory}, {clock}, {cpu}, {photo}}));
    EXPECT_EQ(SceneLayout({{cpu, {0, 0, 85, 85}}, {photo, {0, 100, 300, 300}}}, {1440, 900}).scaled(10), 5);
    QList<WidgetKind> walk;
    for (const SceneItem& item : layout.walk())
        walk.append(item.kind);
    EXPECT_EQ(walk, (QList<WidgetKind>{clock, cpu, memory, photo}));
}

TEST(SceneLayoutTest, FindsWhatLiesBetweenNeighbours)
{
    const SceneLayout layout(desk, {1440, 900});
    QList<QRectF> upright;
    for (const SceneGutter& gutter : layout.gutters(Qt::Horizontal))
        upright.append(gutter.area);
    EXPECT_EQ(upright, (QList<QRectF>{{470, 290, 20, 170}, {470, 100, 20, 170}, {280, 290, 20, 170}}));
    QList<QRectF> level;
    for (const SceneGutter& gutter : layout.gutters(Qt::Vertical))
        level.append(gutter.area);
    EXPECT_EQ(level, (QList<QRectF>{{300, 270, 170, 20}, {110, 270, 170, 20}}));

    const auto count = [](const QRectF& second) {
        return SceneLayout({{cpu, {100, 100, 170, 170}}, {memory, second}}, {1440, 900}).gutters(Qt::Horizontal).size();
    };
    EXPECT_EQ(count({270, 100, 170, 170}), 0) << "touching";
    EXPECT_EQ(count({200, 100, 170, 170}), 0) << "overlapping";
    EXPECT_EQ(count({290, 190, 170, 170}), 0) << "hardly beside each other";
    EXPECT_EQ(count({500, 100, 170, 170}), 0) << "far apart";
    EXPECT_EQ(count({380, 100, 170, 170}), 1);
}

TEST(SceneLayoutTest, BowsFromTheOutermostOnTheLeftToThatOnTheRight)
{
    const auto bow = [](const QList<SceneItem>& items) { return SceneLayout(items, {1440, 900}).bow(60); };
    const SceneItem high{clock, {0, 0, 100, 100}};
    const SceneItem low{cpu, {800, 400, 100, 100}};
    const QPolygonF falling = bow({{memory, {300, 0, 100, 100}}, low, high});
    EXPECT_EQ(falling.first(), high.frame.center());
    EXPECT_EQ(falling.last(), low.frame.center());
    EXPECT_LT(falling[falling.size() / 2].y(), 250) << "level from the upper one";
    const QPolygonF level = bow({high, {cpu, {800, 50, 100, 100}}});
    EXPECT_NEAR(level[level.size() / 2].y(), 75, 1) << "straight";
    EXPECT_EQ(bow({high}).boundingRect().size(), QSizeF(0, 0));
}

TEST(SceneLayoutTest, CutsLines)
{
    const QRectF room(0, 0, 100, 100);
    const QList<QRectF> hole{{40, 40, 20, 20}};
    const auto cut = [&](const QPolygonF& line) {
        QList<QPolygonF> pieces = cutLine(straight(line), room, hole, 3).toSubpathPolygons();
        return pieces;
    };
    EXPECT_EQ(cut({{10, 50}, {90, 50}}), (QList<QPolygonF>{{{10, 50}, {40, 50}}, {{60, 50}, {90, 50}}}));
    EXPECT_EQ(cut({{-50, 10}, {150, 10}}), (QList<QPolygonF>{{{0, 10}, {100, 10}}})) << "at the edges of the room";
    EXPECT_EQ(cut({{45, 50}, {55, 50}}), QList<QPolygonF>()) << "all inside";
    EXPECT_EQ(cut({{38, 50}, {90, 50}}), (QList<QPolygonF>{{{60, 50}, {90, 50}}})) << "a stump is left out";
    EXPECT_EQ(cut({{10, 50}, {50, 50}, {50, 90}}), (QList<QPolygonF>{{{10, 50}, {40, 50}}, {{50, 60}, {50, 90}}}));
    EXPECT_EQ(cut({{10, 40}, {90, 40}}).size(), 1) << "along its edge";
    QPainterPath curve({5, 5});
    curve.quadTo(30, 5, 30, 30);
    EXPECT_EQ(cutLine(curve, room, hole, 3), curve) << "what is not cut stays a curve";
    EXPECT_TRUE(comesNear(curve, {28, 28, 10, 10}, 0));
    EXPECT_FALSE(comesNear(curve, {40, 40, 10, 10}, 5));
}

WidgetConfig widget(WidgetKind kind, Skin skin, QPointF origin)
{
    WidgetConfig config(kind, skin);
    config.origin = origin;
    return config;
}

TEST(SceneChoiceTest, TakesTheSkinOfMostWidgetsAndThoseAlone)
{
    EXPECT_EQ(SceneChoice::skin({}, Skin::kyoto), Skin::kyoto);
    const QList<WidgetConfig> tie{widget(cpu, Skin::neon, {}), widget(cpu, Skin::paper, {})};
    EXPECT_EQ(SceneChoice::skin(tie, Skin::glass), Skin::neon) << "the first of equals";
    EXPECT_EQ(SceneChoice::skin(tie + QList{widget(disk, Skin::paper, {})}, Skin::glass), Skin::paper);

    const QRectF left(0, 0, 1440, 900);
    const QRectF right(1440, -180, 1920, 1080);
    const QSizeF small = WidgetConfig(cpu, Skin::paper).size();
    const QList<WidgetConfig> mixed{widget(cpu, Skin::paper, {100, 30}), widget(disk, Skin::neon, {400, 30}),
        widget(memory, Skin::paper, {1400, 200}), widget(battery, Skin::paper, {2000, 850}),
        widget(network, Skin::paper, {1440, 2000})};
    EXPECT_EQ(SceneChoice::items(mixed, Skin::paper, left),
        (QList<SceneItem>{
            {cpu, {{100, 900 - 30 - small.height()}, small}}, {memory, {{1400, 900 - 200 - small.height()}, small}}}));
    EXPECT_EQ(SceneChoice::items(mixed, Skin::paper, right),
        (QList<SceneItem>{
            {memory, {{-40, 900 - 200 - small.height()}, small}}, {battery, {{560, 50 - small.height()}, small}}}))
        << "one that lies on both screens belongs to both";
}

} // namespace
} // namespace ambrelle
