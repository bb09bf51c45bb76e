// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetsPage.h"

#include "support/WaitUntil.h"
#include "window/cards/CardView.h"
#include "window/frame/Sheets.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/SkinChooser.h"
#include "window/widgets/DesktopList.h"
#include "window/widgets/DesktopPane.h"
#include "window/widgets/FaceTiles.h"
#include "window/widgets/WidgetsModel.h"
#include "window/WindowDesk.h"

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct WidgetsPageTest : WindowTest {
    WidgetsPageTest() { AppLook::shared().apply({.reducesMotion = true}); }
    ~WidgetsPageTest() override { AppLook::shared().apply({}); }

    Desk& desk = home.desk;
    MainWindow* window = nullptr;

    void open()
    {
        window = &opened(MainTab::widgets);
        QCoreApplication::processEvents();
    }
    CardView& gallery() const { return *window->findChild<CardView*>(); }
    DesktopList& list() const { return *window->findChild<DesktopList*>(); }
    QModelIndex card(const QString& title) const { return find(gallery(), title); }
    static QModelIndex find(const QAbstractItemView& view, const QString& title)
    {
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (const QModelIndex index = view.model()->index(row, 0); index.data().toString() == title)
                return index;
        }
        return {};
    }
    Button& button(const QString& name) const
    {
        for (Button* each : window->findChildren<Button*>()) {
            if (each->title() == name || each->accessibleName() == name)
                return *each;
        }
        ADD_FAILURE() << "no " << name.toStdString();
        return *window->findChild<Button*>();
    }
    QList<WidgetKind> kinds() const
    {
        QList<WidgetKind> kinds;
        for (const WidgetConfig& config : desk.stored())
            kinds.append(config.kind);
        return kinds;
    }
    void chooseRows(const QList<int>& rows) const
    {
        list().clearSelection();
        for (const int row : rows)
            list().selectionModel()->select(list().model()->index(row, 0), QItemSelectionModel::Select);
    }
    /// The pointer of the machine and the toolkit's go there together.
    void move(QEvent::Type type, const QPointF& global)
    {
        desk.host.movePointer(global);
        QWidget& viewport = *gallery().viewport();
        const QPointF place = desk.host.toolkitRect({global, QSizeF(0, 0)}).topLeft();
        const bool moves = type == QEvent::MouseMove;
        const bool up = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, viewport.mapFromGlobal(place), place, moves ? Qt::NoButton : Qt::LeftButton,
            up ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&viewport, &event);
    }
    QPointF globalOf(const QPoint& place) const
    {
        return {place.x() * 1.0, desk.host.screens().first().frame.height() - place.y()};
    }
};

TEST_F(WidgetsPageTest, AddsWithAClickWhereThereIsRoomAndTakesItBack)
{
    desk.settings.defaultSkin.set(Skin::neon);
    open();
    Q_EMIT gallery().activated(card(u"Memory"_s));
    ASSERT_EQ(desk.live().size(), 1);
    const WidgetConfig added = desk.live().first();
    EXPECT_EQ(added.kind, WidgetKind::memory);
    EXPECT_EQ(added.skin, Skin::neon);
    const QRectF room = desk.host.screens().first().visibleFrame.adjusted(20, 20, -20, -20);
    EXPECT_EQ(added.frame().topRight() + QPointF(0, added.size().height()), room.bottomRight());
    EXPECT_EQ(desk.manager.controllers().first()->level(), WindowLevel::floating) << "it is pointed out";
    EXPECT_EQ(cardAt(card(u"Memory"_s)).pill, u"Added"_s);
    EXPECT_EQ(list().chosen().size(), 1);
    EXPECT_EQ(home.undo.text(), u"Memory added"_s);
    desk.clock.advance(std::chrono::milliseconds(1200));
    EXPECT_EQ(cardAt(card(u"Memory"_s)).pill, QString());
    press(*window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(desk.live().isEmpty());
    EXPECT_TRUE(desk.stored().isEmpty());
}

TEST_F(WidgetsPageTest, ATileThatCannotBeDrawnIsNotTriedWithoutEnd)
{
    WidgetsModel kinds;
    QListView view;
    view.setModel(&kinds);
    view.show();
    FaceTiles tiles(home.context, view);
    constexpr QSize tooLarge(100'000, 100'000);
    const QModelIndex clock = kinds.first();
    int arrivals = 0;
    QObject::connect(&tiles, &CardPictures::arrived, &view, [&] {
        ++arrivals;
        EXPECT_TRUE(tiles.picture(clock, tooLarge).isNull()); // as a view asks that paints it
    });
    tiles.want({clock}, tooLarge);
    ASSERT_TRUE(waitUntil([&] { return arrivals > 0; }));
    QTest::qWait(100);
    desk.clock.advance(FaceTiles::leastAge);
    QTest::qWait(100);
    EXPECT_EQ(arrivals, 1);
}

TEST_F(WidgetsPageTest, DragsAWidgetOutEvenWhenPositionsAreLocked)
{
    desk.settings.locked.set(true);
    open();
    window->move(10, 60);
    window->resize(800, 560);
    QCoreApplication::processEvents();
    const auto ghosts = [&] { return desk.host.panels().size() - desk.live().size(); };
    const QRectF picture = gallery().partRect(card(u"Clock"_s), CardPart::picture);
    const QPointF start = globalOf(gallery().viewport()->mapToGlobal(picture.center().toPoint()));
    const auto pull = [&](const QPointF& to) {
        move(QEvent::MouseButtonPress, start);
        move(QEvent::MouseMove, start + QPointF(4, 4));
        EXPECT_EQ(ghosts(), 1);
        EXPECT_TRUE(desk.host.panels().last()->isVisible() && desk.host.panels().last()->isClickThrough());
        move(QEvent::MouseMove, to);
        EXPECT_EQ(desk.host.panels().last()->frame().center(), to) << "held at its centre";
    };
    const QPointF outside(1200, 300);
    pull(outside);
    press(*window, Qt::Key_Escape);
    EXPECT_EQ(ghosts(), 0);
    move(QEvent::MouseButtonRelease, outside);
    EXPECT_TRUE(window->isVisible() && desk.live().isEmpty()) << "Escape ends the drag and nothing else";
    pull(start + QPointF(60, 0));
    move(QEvent::MouseButtonRelease, start + QPointF(60, 0));
    EXPECT_TRUE(desk.live().isEmpty() && ghosts() == 0) << "dropped inside";
    pull(outside);
    move(QEvent::MouseButtonRelease, outside);
    ASSERT_EQ(desk.stored().size(), 1);
    EXPECT_EQ(desk.stored().first().frame().center(), outside);
    EXPECT_EQ(ghosts(), 0);
}

TEST_F(WidgetsPageTest, ADragOutWhereNoWindowKnowsItsPlaceEndsWhereTheHostSays)
{
    open();
    window->resize(800, 560);
    QCoreApplication::processEvents();
    const QRectF picture = gallery().partRect(card(u"Clock"_s), CardPart::picture);
    const QPointF start = globalOf(gallery().viewport()->mapToGlobal(picture.center().toPoint()));
    const auto pull = [&](const QPointF& to) {
        move(QEvent::MouseButtonPress, start);
        move(QEvent::MouseMove, start + QPointF(4, 4));
        ASSERT_TRUE(QGuiApplication::overrideCursor()) << "the ghost";
        EXPECT_FALSE(QGuiApplication::overrideCursor()->pixmap().isNull());
        move(QEvent::MouseButtonRelease, to);
        EXPECT_FALSE(QGuiApplication::overrideCursor());
    };
    const QPointF told(700, 500);
    const QPointF outside(1400, 20);
    desk.host.setDropSpot(told);
    pull(start + QPointF(30, 0));
    QCoreApplication::processEvents();
    EXPECT_TRUE(desk.live().isEmpty()) << "dropped inside";
    pull(outside);
    ASSERT_TRUE(waitUntil([&] { return desk.stored().size() == 1; }));
    EXPECT_EQ(desk.stored().first().frame().center(), told);
    desk.host.setDropSpot(std::nullopt);
    pull(outside);
    ASSERT_TRUE(waitUntil([&] { return desk.stored().size() == 2; }));
    EXPECT_TRUE(desk.host.screens().first().visibleFrame.contains(desk.stored().last().frame())) << "as after a click";
    EXPECT_FALSE(desk.stored().last().frame().intersects(desk.stored().first().frame()));
}

TEST_F(WidgetsPageTest, RemovesTheChosenOnesAndBringsThemBackInTheirOrder)
{
    for (const WidgetKind kind : {WidgetKind::cpu, WidgetKind::disk, WidgetKind::memory, WidgetKind::clock})
        desk.manager.add(kind);
    open();
    const QList<WidgetConfig> before = desk.stored();
    chooseRows({0, 2});
    EXPECT_FALSE(button(u"Widget Settings…"_s).isEnabled()) << "of which of them?";
    press(list(), Qt::Key_Delete);
    EXPECT_EQ(kinds(), QList({WidgetKind::disk, WidgetKind::clock}));
    EXPECT_FALSE(button(u"Remove"_s).isEnabled());
    desk.manager.controllers().last()->setPinned(true); // meanwhile
    home.undo.undo();
    QList<WidgetConfig> after = desk.stored();
    EXPECT_TRUE(after.last().pinned) << "undo takes back what it says, no more";
    after.last().pinned = false;
    EXPECT_EQ(after, before);
    chooseRows({3});
    button(u"Remove"_s).click();
    EXPECT_EQ(home.undo.text(), u"Clock removed"_s);
}

TEST_F(WidgetsPageTest, LocatesAndOpensTheSettingsOfTheChosenOne)
{
    desk.manager.add(WidgetKind::cpu);
    WidgetController* clock = desk.manager.add(WidgetKind::clock);
    open();
    QList<WidgetController*> asked;
    QObject::connect(
        &desk.manager, &WidgetManager::settingsRequested, [&](WidgetController* widget) { asked.append(widget); });
    EXPECT_FALSE(button(u"Locate"_s).isEnabled());
    chooseRows({1});
    press(list(), Qt::Key_Return);
    EXPECT_EQ(clock->level(), WindowLevel::floating);
    EXPECT_EQ(desk.manager.controllers().first()->level(), WindowLevel::desktop);
    desk.clock.advance(std::chrono::milliseconds(1600));
    EXPECT_EQ(clock->level(), WindowLevel::desktop);
    button(u"Widget Settings…"_s).click();
    EXPECT_EQ(asked, QList{clock});
}

TEST_F(WidgetsPageTest, AsksBeforeAllGoAndBringsAllBack)
{
    desk.show({desk.host.screens().first(), rightScreen});
    desk.manager.add(WidgetKind::cpu);
    desk.add(WidgetKind::disk, {1600, 200});
    desk.manager.add(WidgetKind::clock);
    open();
    const QList<WidgetConfig> before = desk.stored();
    DesktopEdits edits(home.context);
    const auto removeAll = [&](bool accepted) {
        home.sheets.answer({.button = accepted ? QString(sheets::accept) : QString()});
        return kinds();
    };
    edits.askToRemoveAll();
    EXPECT_EQ(home.sheets.current()->title, u"Remove all 3 widgets?"_s);
    EXPECT_EQ(removeAll(false).size(), 3);
    edits.askToRemoveAll();
    EXPECT_TRUE(removeAll(true).isEmpty());
    EXPECT_FALSE(list().isVisible()) << "a note stands in its place";
    EXPECT_EQ(home.undo.text(), u"3 widgets removed"_s);
    home.undo.undo();
    EXPECT_EQ(desk.stored(), before);
    edits.askToRemoveAll(rightScreen, u"Right"_s);
    EXPECT_EQ(removeAll(true), QList({WidgetKind::cpu, WidgetKind::clock}));
    home.undo.undo();
    EXPECT_EQ(desk.stored(), before);
}

TEST_F(WidgetsPageTest, GivesAllWidgetsTheSkinOfNewOnesAndTheirOwnBack)
{
    desk.manager.add(WidgetKind::clock, Skin::paper);
    desk.manager.add(WidgetKind::disk, Skin::neon);
    open();
    const QList<WidgetConfig> before = desk.stored();
    Q_EMIT window->findChild<SkinChooser*>()->chose(Skin::neon);
    Button& use = button(u"Use Neon for All Widgets"_s);
    ASSERT_TRUE(use.isEnabled());
    use.click();
    EXPECT_EQ(desk.stored().first().skin, Skin::neon);
    EXPECT_EQ(home.undo.text(), u"All widgets use Neon"_s);
    QCoreApplication::processEvents();
    EXPECT_FALSE(use.isEnabled());
    home.undo.undo();
    EXPECT_EQ(desk.stored(), before);

    QCoreApplication::processEvents();
    use.click();
    WidgetController* clock = desk.manager.controllers().first();
    clock->setPinned(!before.first().pinned);
    desk.settings.defaultSkin.set(Skin::mono);
    home.undo.undo();
    EXPECT_EQ(clock->config().skin, Skin::paper);
    EXPECT_NE(clock->config().pinned, before.first().pinned) << "what was done since stays";
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::mono);
}

TEST_F(WidgetsPageTest, ShowsSamplesOfWhatNobodyMeasures)
{
    open();
    const auto* tiles = window->findChild<FaceTiles*>();
    const auto reading = [&](WidgetKind kind) { return tiles->reading(kind); };
    ASSERT_TRUE(waitUntil([&] { return reading(WidgetKind::weather) != nullptr; }));
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        ASSERT_TRUE(reading(kind)) << title(kind).toStdString();
        EXPECT_FALSE(noticeOf(*reading(kind))) << title(kind).toStdString();
    }
    EXPECT_EQ(std::get<ClockReading>(*reading(WidgetKind::clock)).time(), u"10:00"_s) << "that needs no sample";
    EXPECT_NE(std::get<ActivityReading>(*reading(WidgetKind::activity)).active,
        std::get<ActivityReading>(desk.feed.readingFor(WidgetConfig(WidgetKind::activity, Skin::glass))).active);
    EXPECT_FALSE(std::get<SkyReading>(*reading(WidgetKind::sky)).sunrise.isEmpty());
    const auto sample = reading(WidgetKind::nowPlaying);
    desk.services.live.player.loadPreviewData(QImage(4, 4, QImage::Format_RGB32));
    EXPECT_EQ(reading(WidgetKind::nowPlaying), sample) << "a track of some time ago, when somebody asked";
}

TEST_F(WidgetsPageTest, ShowsHalfOfItselfWhereItIsNarrowAndSaysWhatWasNotFound)
{
    open();
    window->setMinimumSize(300, 300);
    window->resize(720, 480);
    QCoreApplication::processEvents();
    EXPECT_TRUE(gallery().isVisible());
    EXPECT_FALSE(list().parentWidget()->isVisible());
    home.model.setCategory(WidgetCategory::music);
    home.model.setSearch(MainTab::widgets, u"clock"_s);
    EXPECT_FALSE(gallery().isVisible());
    button(u"Search in All"_s).click();
    EXPECT_TRUE(card(u"Clock"_s).isValid());
    home.model.setSearch(MainTab::widgets, u"xyz"_s);
    EXPECT_FALSE(button(u"Search in All"_s).isVisible());
    const auto isThere = [this] { return button(u"Clear Search"_s).hasFocus(); };
    QCoreApplication::processEvents();
    dynamic_cast<WidgetsPage&>(*gallery().parentWidget()->parentWidget()).takeFocus(true);
    EXPECT_TRUE(isThere());
    window->resize(1120, 720);
    QCoreApplication::processEvents();
    press(*window, Qt::Key_F6);
    EXPECT_FALSE(isThere());
    for (int step = 0; step < 4 && !isThere(); ++step)
        press(*window, Qt::Key_F6);
    EXPECT_TRUE(isThere()) << "out of reach of the keyboard";
    button(u"Clear Search"_s).click();
    EXPECT_TRUE(gallery().isVisible());
}

TEST_F(WidgetsPageTest, PaintsATileAgainOnlyWhenItsReadingChangedAndSomebodyLooks)
{
    open();
    auto* tiles = window->findChild<FaceTiles*>();
    QStringList painted;
    QObject::connect(tiles, &CardPictures::arrived, [&](const QString& kind) { painted.append(kind); });
    const auto hasArrived = [&](const QString& kind) { return waitUntil([&] { return painted.contains(kind); }); };
    ASSERT_TRUE(hasArrived(u"clock"_s) && hasArrived(u"cpu"_s));
    EXPECT_FALSE(desk.monitor.wantsProcesses()) << "a gallery asks for nothing";
    const auto settled = [&] {
        for (int round = 0; round < 20; ++round)
            QTest::qWait(10);
        return std::exchange(painted, {});
    };
    while (!settled().isEmpty()) { }
    Q_EMIT desk.monitor.changed();
    desk.clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(settled(), QStringList()) << "nothing reads differently";
    desk.clock.advance(std::chrono::minutes(1));
    EXPECT_TRUE(hasArrived(u"clock"_s));
    EXPECT_FALSE(painted.contains(u"cpu"_s));
    settled();
    window->hide();
    desk.clock.advance(std::chrono::minutes(1));
    EXPECT_EQ(settled(), QStringList());
    window->show();
    EXPECT_TRUE(hasArrived(u"clock"_s)) << "it is late by a minute";
}

} // namespace
} // namespace ambrelle
