// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"
#include "desktop/ReadingRound.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using enum WidgetKind;

/// What widgets read, and when that is painted.
using ReadingsShownTest = DeskTest;

TEST_F(ReadingsShownTest, SamplesProcessesOnlyWhileAWidgetShowsThem)
{
    WidgetController* list = desk.manager.add(processes);
    EXPECT_TRUE(desk.monitor.wantsProcesses());
    desk.manager.remove(list);
    EXPECT_FALSE(desk.monitor.wantsProcesses());
}

TEST_F(ReadingsShownTest, RepaintsOnlyWhatReadsDifferently)
{
    desk.machine.memory.currentPhysicalMemory = 1 << 30;
    desk.machine.processor.currentTicks = QList<ProcessorTicks>(2);
    const WidgetController* cpuWidget = desk.add(cpu, {100, 100});
    desk.add(disk, {400, 100});
    desk.monitor.start(2);
    desk.clock.advance(4s);
    desk.paintAll();
    const auto repaints = [&](const WidgetController* widget) {
        return desk.panels().at(desk.manager.controllers().indexOf(widget))->updates().size();
    };
    desk.clock.advance(60s);
    EXPECT_EQ(repaints(cpuWidget), 0) << "an idle machine paints nothing";
    desk.machine.processor.currentLoads = std::array{1.5, 1.0, 0.5};
    desk.clock.advance(2s);
    EXPECT_EQ(repaints(cpuWidget), 1);
    EXPECT_EQ(repaints(desk.manager.controllers().last()), 0);
}

TEST_F(ReadingsShownTest, ClocksGoBySecondsWhereTheyShowThemAndSomebodyLooks)
{
    desk.settings.animations.set(false);
    WidgetController* widget = desk.add(clock, {100, 100}, Skin::field);
    desk.add(clock, {600, 100}, Skin::glass);
    const auto repaintsIn = [&](std::chrono::milliseconds time) {
        desk.paintAll();
        desk.clock.advance(time);
        return QList<qsizetype>{desk.panels().first()->updates().size(), desk.panels().last()->updates().size()};
    };
    EXPECT_EQ(repaintsIn(5s), (QList<qsizetype>{5, 0}));
    desk.session.setVisible(false);
    EXPECT_EQ(repaintsIn(90s), (QList<qsizetype>{0, 0}));
    desk.session.setVisible(true);
    EXPECT_EQ(repaintsIn(1s), (QList<qsizetype>{1, 0}));
    widget->setSkin(Skin::glass);
    EXPECT_EQ(repaintsIn(20s), (QList<qsizetype>{0, 0}));
    widget->setSkin(Skin::field);
    EXPECT_EQ(repaintsIn(2s), (QList<qsizetype>{2, 0}));
}

TEST_F(ReadingsShownTest, OtherWidgetsDoNotHoldAPhotoUp)
{
    const TestFolder folder;
    QImage image(8, 8, QImage::Format_RGB32);
    for (const char* name : {"one.png", "other.png"})
        ASSERT_TRUE(image.save(folder.filePath(QLatin1StringView(name))));
    WidgetController* widget = desk.add(photo, {100, 100});
    widget->change([&folder](WidgetConfig& config) {
        config.photoFolder = folder.path();
        config.photoInterval = 10;
    });
    desk.clock.advance(1s); // photos come after the widgets
    const PhotoAlbum& album = desk.services.live.photos;
    const auto told = [&] {
        EXPECT_TRUE(waitUntil([&] { return !album.isLoading(widget->config().id); }));
        return desk.host.panels().first()->delegate().accessibleText();
    };
    waitUntil([&] { return told().contains(u"Picture"_s); });
    const QString first = told();
    EXPECT_TRUE(first == u"Picture “one”"_s || first == u"Picture “other”"_s) << first.toStdString();

    WidgetController* other = desk.add(cpu, {600, 100});
    desk.clock.advance(9min);
    other->setScale(WidgetScale::huge);
    widget->change([](WidgetConfig& config) { config.opacity = 0.5; });
    EXPECT_EQ(told(), first);
    desk.clock.advance(1min);
    EXPECT_TRUE(waitUntil([&] { return told() != first; })) << "after ten minutes of its own";
}

TEST_F(ReadingsShownTest, SharesOneReadingAmongEqualWidgets)
{
    ReadingRound round(desk.feed);
    const WidgetConfig one(memory, Skin::glass);
    const WidgetConfig other(memory, Skin::paper, WidgetScale::huge, {50, 50});
    WidgetConfig tokyo(clock, Skin::glass);
    tokyo.timeZone = u"Asia/Tokyo"_s;
    EXPECT_EQ(round.readingFor(one, false), round.readingFor(other, false));
    EXPECT_NE(round.readingFor(tokyo, false), round.readingFor(WidgetConfig(clock, Skin::glass), false));
    EXPECT_NE(round.readingFor(tokyo, false), round.readingFor(tokyo, true));
    EXPECT_NE(round.readingFor(WidgetConfig(photo, Skin::glass), false),
        round.readingFor(WidgetConfig(photo, Skin::glass), false));
}

} // namespace
} // namespace ambrelle
