// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ambrelle {
namespace {

using enum WidgetKind;
using namespace std::chrono_literals;

struct SceneControllerTest : DeskTest {
    QList<RecordingScene*> shown() const
    {
        QList<RecordingScene*> shown;
        for (RecordingScene* scene : desk.host.scenes()) {
            if (scene->isVisible())
                shown.append(scene);
        }
        return shown;
    }
    QList<QList<WidgetKind>> kinds() const ///< of the items of each screen
    {
        QList<QList<WidgetKind>> kinds;
        for (const SceneController::Model& model : desk.manager.scenes().models()) {
            kinds.append(QList<WidgetKind>());
            for (const SceneItem& item : model.items)
                kinds.last().append(item.kind);
        }
        return kinds;
    }
    using Kinds = QList<QList<WidgetKind>>;
};

TEST_F(SceneControllerTest, DecoratesTheWidgetsOfTheMostCommonSkin)
{
    desk.settings.defaultSkin.set(Skin::kyoto);
    desk.manager.load();
    EXPECT_EQ(kinds(), Kinds{{}});
    EXPECT_EQ(desk.manager.scenes().models().first().skin, Skin::kyoto) << "no widgets";
    EXPECT_TRUE(desk.host.scenes().isEmpty()) << "and no window";

    WidgetController* first = desk.add(cpu, {300, 300}, Skin::paper);
    EXPECT_EQ(kinds(), Kinds{{cpu}});
    ASSERT_EQ(shown().size(), 1);
    desk.clock.advance(100ms);
    desk.add(disk, {600, 300}, Skin::glass);
    desk.clock.advance(100ms);
    desk.add(memory, {900, 300}, Skin::glass);
    EXPECT_EQ(kinds(), (Kinds{{disk, memory}}));
    EXPECT_TRUE(shown().isEmpty()) << "that skin's scene has no marks";
    desk.clock.advance(100ms);
    desk.manager.remove(first);
    desk.clock.advance(100ms);
    desk.manager.changeSkins([](Skin) { return Skin::neon; });
    desk.clock.advance(100ms);
    EXPECT_EQ(desk.manager.scenes().models().first().skin, Skin::neon);
    ASSERT_EQ(shown().size(), 1);

    desk.settings.showScene.set(false);
    EXPECT_EQ(kinds(), Kinds{{}});
    EXPECT_TRUE(shown().isEmpty());
    desk.settings.showScene.set(true);
    EXPECT_EQ(shown().size(), 1);
    desk.clock.advance(100ms);
    desk.manager.removeAll();
    desk.clock.advance(100ms);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(SceneControllerTest, FollowsTheScreens)
{
    desk.add(cpu, {1380, 300}, Skin::neon);
    desk.clock.advance(100ms);
    EXPECT_EQ(kinds(), Kinds{{cpu}});
    const ScreenInfo left = desk.host.screens().first();
    desk.show({left, rightScreen});
    ASSERT_EQ(kinds(), (Kinds{{cpu}, {cpu}})) << "it lies on both";
    const QList<SceneController::Model> models = desk.manager.scenes().models();
    EXPECT_EQ(models[0].items.first().frame.left(), 1380);
    EXPECT_EQ(models[1].items.first().frame.left(), -60);
    EXPECT_EQ(shown().size(), 2);
    for (const RecordingScene* scene : shown())
        EXPECT_TRUE(left.frame.contains(scene->frame()) || rightScreen.frame.contains(scene->frame()));

    ScreenInfo larger = left;
    larger.frame = larger.visibleFrame = {0, 0, 1920, 1080};
    desk.show({larger});
    EXPECT_EQ(kinds(), Kinds{{cpu}});
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(desk.manager.scenes().models().first().items.first().frame.bottom(),
        1080 - desk.manager.controllers().first()->widgetFrame().top());
    desk.show({});
    EXPECT_TRUE(shown().isEmpty());
    desk.show({left});
    EXPECT_EQ(shown().size(), 1);
}

TEST_F(SceneControllerTest, PaintsAnotherAccent)
{
    desk.add(clock, {300, 300}, Skin::neon);
    ASSERT_EQ(shown().size(), 1);
    const QImage before = shown().first()->picture();
    shown().first()->clearUpdates();
    desk.accents.set(QColor(Qt::green), Skin::paper);
    desk.clock.advance(100ms);
    EXPECT_TRUE(shown().first()->updates().isEmpty()) << "another skin's";
    desk.clock.advance(100ms);
    desk.accents.set(QColor(Qt::red), Skin::neon);
    desk.accents.set(QColor(Qt::green), Skin::neon);
    EXPECT_FALSE(shown().first()->updates().isEmpty());
    desk.clock.advance(100ms); // as many as come, the last one is shown
    EXPECT_NE(shown().first()->picture(), before);
}

TEST_F(SceneControllerTest, FollowsADragWhereItChangesAndNotTooOften)
{
    desk.add(clock, {300, 600}, Skin::paper);
    desk.clock.advance(2s);
    desk.add(cpu, {700, 600}, Skin::paper);
    desk.clock.advance(2s);
    WidgetController* dragged = desk.add(memory, {900, 300}, Skin::paper);
    desk.clock.advance(2s);
    RecordingScene* scene = shown().value(0);
    ASSERT_TRUE(scene);
    const QRectF tight = scene->frame();
    EXPECT_LT(tight.width() * tight.height(), 1440 * 900 / 3) << "no larger than the marks";
    QImage screen = scene->picture();

    QPointF pointer = dragged->widgetFrame().center();
    desk.host.press(pointer);
    scene->clearUpdates();
    int paints = 0;
    for (int step = 0; step < 125; ++step) { // a second, at the pace of a mouse
        pointer += QPointF(-2, 1);
        desk.host.movePointer(pointer);
        desk.clock.advance(8ms);
        paints += scene->updates().isEmpty() ? 0 : 1;
        for (const QRectF& area : scene->updates())
            EXPECT_TRUE(QRectF({0, 0}, scene->frame().size()).intersects(area));
        scene->clearUpdates();
    }
    EXPECT_LE(paints, 30);
    EXPECT_GE(paints, 5) << "it follows";
    const SceneController::Model model = desk.manager.scenes().models().first();
    EXPECT_LT(model.items.last().frame.left(), 700) << "where the widget is seen";
    desk.host.release(pointer);
    desk.clock.advance(3s);
    EXPECT_LT(scene->frame().width(), 1440) << "afterwards it is as large as it must";
    scene->clearUpdates();
    desk.clock.advance(60s);
    EXPECT_TRUE(scene->updates().isEmpty());
}

/// Every change of an outline costs the window system much, and so does a fine one whatever moves.
TEST_F(SceneControllerTest, IsCutLooselyWhileItFollowsADrag)
{
    desk.host.setComposited(false);
    desk.add(clock, {300, 600}, Skin::cork);
    desk.clock.advance(2s);
    desk.add(cpu, {700, 600}, Skin::cork);
    desk.clock.advance(2s);
    WidgetController* dragged = desk.add(memory, {900, 300}, Skin::cork);
    desk.clock.advance(2s);
    RecordingScene* scene = shown().value(0);
    ASSERT_TRUE(scene);
    const auto outline = [&] {
        QRegion kept;
        for (const QRectF& area : scene->outline())
            kept += area.toAlignedRect();
        return kept;
    };
    const auto lost = [&] { // pixels of marks that are cut away
        QImage picture = scene->picture();
        QPainter painter(&picture);
        painter.setClipRegion(outline());
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(picture.rect(), Qt::black);
        painter.end();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            count +=
                static_cast<int>(std::count_if(line, line + picture.width(), [](QRgb p) { return qAlpha(p) > 0; }));
        }
        return count;
    };
    const int fine = outline().rectCount();
    QPointF pointer = dragged->widgetFrame().center();
    desk.host.press(pointer);
    int changes = 0;
    QRegion before;
    for (int step = 0; step < 60; ++step) {
        pointer += QPointF(-2, 1);
        desk.host.movePointer(pointer);
        desk.clock.advance(34ms);
        changes += std::exchange(before, outline()) != outline() ? 1 : 0;
        if (step % 10 == 5) {
            EXPECT_EQ(lost(), 0) << step;
        }
    }
    EXPECT_GE(changes, 2) << "the marks have moved by more than two squares";
    EXPECT_LE(changes, 20);
    EXPECT_LT(outline().rectCount(), fine / 2);
    desk.host.release(pointer);
    desk.clock.advance(3s);
    EXPECT_EQ(lost(), 0);
    EXPECT_GT(outline().rectCount(), fine / 2) << "as fine as before";
}

TEST_F(SceneControllerTest, RestsWhileLockedThoughAScreenComes)
{
    desk.add(clock, {600, 400}, Skin::pulse);
    desk.clock.advance(2s);
    desk.session.setVisible(false);
    desk.show({desk.host.screens().first(), rightScreen});
    desk.clock.advance(2s);
    ASSERT_EQ(shown().size(), 1);
    shown().first()->picture();
    shown().first()->clearUpdates();
    desk.clock.advance(10s);
    EXPECT_TRUE(shown().first()->updates().isEmpty());
}

TEST_F(SceneControllerTest, MovesOnlyWhileSomebodySeesIt)
{
    desk.settings.overlap.set(OverlapBehavior::show);
    WidgetController* widget = desk.add(clock, {600, 400}, Skin::pulse);
    desk.clock.advance(2s);
    RecordingScene* scene = shown().value(0);
    ASSERT_TRUE(scene);
    const QRectF whole({0, 0}, scene->frame().size());
    scene->picture();
    const auto frames = [&] { // in five seconds, in which the heart beats once or twice
        int count = 0;
        scene->clearUpdates();
        for (int step = 0; step < 500; ++step) {
            desk.clock.advance(10ms);
            for (const QRectF& area : scene->updates()) {
                EXPECT_LT(area.width() * area.height(), whole.width() * whole.height() / 4) << "only what moves";
                scene->picture(area);
            }
            count += scene->updates().isEmpty() ? 0 : 1;
            scene->clearUpdates();
        }
        return count;
    };
    struct Step {
        const char* what;
        std::function<void()> take;
        bool moves;
        bool isWatched;
    };
    const QRectF screen(0, 0, 1440, 900);
    const Step steps[] = {
        {"in sight", [] {}, true, true},
        {"partly covered", [&] { desk.windows.show({{screen.adjusted(0, 0, -720, 0)}}); }, true, true},
        {"wholly covered", [&] { desk.windows.show({{screen}}); }, false, true},
        {"in sight again", [&] { desk.windows.show({}); }, true, true},
        {"locked", [&] { desk.session.setVisible(false); }, false, false},
        {"unlocked", [&] { desk.session.setVisible(true); }, true, true},
        {"nothing shall move", [&] { desk.settings.animations.set(false); }, false, false},
        {"all may move again", [&] { desk.settings.animations.set(true); }, true, true},
        {"a scene that is still", [&] { widget->setSkin(Skin::paper); }, false, false},
        {"and back", [&] { widget->setSkin(Skin::pulse); }, true, true},
    };
    for (const Step& step : steps) {
        step.take();
        desk.clock.advance(2s); // what changed settles
        scene->picture();
        const int count = frames();
        EXPECT_EQ(count > 3, step.moves) << step.what << ": " << count;
        EXPECT_TRUE(step.moves || count == 0) << step.what << ": " << count;
        EXPECT_LT(count, 13) << step.what << ": still between two beats";
        EXPECT_EQ(desk.windows.isWatched, step.isWatched) << step.what;
    }
    desk.settings.animations.set(false);
    EXPECT_FALSE(scene->updates().isEmpty()) << "it comes to rest";
}

TEST_F(SceneControllerTest, IsCutToItsMarksWhereNothingComposites)
{
    desk.add(clock, {300, 300}, Skin::neon);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown().first()->outline().isEmpty());
    desk.host.setComposited(false);
    shown().first()->delegate().appearanceChanged();
    ASSERT_EQ(shown().size(), 1);
    const RecordingScene* scene = shown().first(); // another one: a window blends or it does not
    const QImage picture = scene->picture();
    QRegion kept;
    for (const QRectF& area : scene->outline())
        kept += area.toRect();
    int lost = 0;
    qsizetype area = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            lost += qAlpha(picture.pixel(x, y)) > 0 && !kept.contains(QPoint(x, y)) ? 1 : 0;
    }
    for (const QRect& rect : kept)
        area += static_cast<qsizetype>(rect.width()) * rect.height();
    EXPECT_EQ(lost, 0);
    EXPECT_LT(area, picture.width() * picture.height() / 2) << "what lies between the marks is not covered";
}

} // namespace
} // namespace ambrelle
