// SPDX-License-Identifier: MIT

#include "support/WaitUntil.h"
#include "window/cards/CardView.h"
#include "window/frame/MoreMenu.h"
#include "window/frame/SearchField.h"
#include "window/frame/Sheets.h"
#include "window/frame/TabStrip.h"
#include "window/frame/ToolBar.h"
#include "window/frame/UndoBar.h"
#include "window/look/Button.h"
#include "window/look/FocusRing.h"
#include "window/WindowDesk.h"

#include <QStackedWidget>
#include <QToolButton>

#include <gmock/gmock.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

using MainWindowTest = WindowTest;

/// Names the classes of all windows that come.
struct ShownWindows : QObject {
    QStringList classes;

    ShownWindows() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Show && widget && widget->isWindow())
            classes.append(QString::fromLatin1(widget->metaObject()->className()));
        return false;
    }
};

TEST_F(MainWindowTest, NoPartOfItIsAWindowForAMoment)
{
    const ShownWindows shown;
    for (const MainTab tab : {MainTab::themes, MainTab::widgets, MainTab::wallpapers, MainTab::settings}) {
        home.model.setShowWelcome(true);
        opened(tab);
        home.model.openTheme(Skin::neon);
        QCoreApplication::processEvents();
        home.model.closeTheme();
        home.model.setSearch(tab, u"zzz"_s);
        QCoreApplication::processEvents();
    }
    for (const SheetContent& sheet : {sheets::applyTheme(u"Neon"_s, false, u"Apply"_s), sheets::shortcuts(),
             sheets::save(u"Desk"_s, {u"Left"_s, u"Right"_s}), sheets::removeTheme(u"Desk"_s)}) {
        home.sheets.ask(sheet);
        home.sheets.leave();
    }
    home.undo.offer({u"Clock removed"_s, {}});
    home.undo.fail(u"“notes.txt” isn't a picture"_s, [] {});
    EXPECT_EQ(shown.classes.join(u' ').toStdString(), "ambrelle::MainWindow") << "it would take the keyboard away";
}

TEST_F(MainWindowTest, KeepsItsTabPlaceAndSizeWhileClosedAndIsGoneMeanwhile)
{
    home.window.show(MainTab::wallpapers);
    ASSERT_TRUE(home.window.window());
    auto* tabs = home.window.window()->findChild<TabStrip*>();
    EXPECT_EQ(tabs->currentIndex(), 2);
    tabs->setCurrentIndex(3);
    home.window.window()->resize(901, 602);
    home.window.toggle();
    QCoreApplication::processEvents();
    EXPECT_FALSE(home.window.isVisible());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "a closed window takes no memory";
    home.window.toggle();
    EXPECT_EQ(home.model.tab(), MainTab::settings);
    EXPECT_EQ(home.window.window()->size(), QSize(901, 602));
    EXPECT_EQ(MainWindowModel(store).size(), QSize(901, 602)) << "the next run begins with it";
}

TEST_F(MainWindowTest, MakesEachPageOnceEvenIfThatChangesTheModel)
{
    home.model.setWallpaperTarget(u"gone"_s);
    home.model.openTheme(QUuid::createUuid()); // deleted meanwhile
    home.window.show(MainTab::themes);
    home.window.show(MainTab::wallpapers);
    EXPECT_EQ(home.model.wallpaperTarget(), QString());
    EXPECT_FALSE(home.model.isThemeOpen());
    EXPECT_EQ(home.window.window()->findChild<QStackedWidget*>({}, Qt::FindDirectChildrenOnly)->count(), 2);
}

TEST_F(MainWindowTest, FitsTheScreenWithThePointer)
{
    const ScreenInfo small{
        .id = u"small"_s, .connector = u"small"_s, .frame = {0, 0, 640, 480}, .visibleFrame = {0, 0, 640, 440}};
    home.desk.host.setScreens({small});
    home.window.show();
    const QSize most = (QSizeF(640, 440) * 0.92).toSize();
    EXPECT_EQ(home.window.window()->size(), most);
    EXPECT_TRUE(home.window.window()->minimumSize() == most) << "else it could not be that small";
}

TEST_F(MainWindowTest, ForgetsAMinuteAfterItWasClosedUnlessShownAgain)
{
    int forgotten = 0;
    QObject::connect(&home.window, &MainWindowController::forgotten, [&] { ++forgotten; });
    const auto closeFor = [&](std::chrono::seconds time) {
        home.window.show();
        home.window.toggle();
        QCoreApplication::processEvents();
        home.desk.clock.advance(time);
    };
    closeFor(std::chrono::seconds(59));
    closeFor(std::chrono::seconds(59));
    EXPECT_EQ(forgotten, 0);
    home.desk.clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(forgotten, 1);
}

TEST_F(MainWindowTest, WelcomesUntilDismissedOrShownThreeTimes)
{
    for (const int showingsUntilDismissed : {9, 1}) {
        MainWindowModel(store).setShowWelcome(true);
        for (int showing = 1; showing <= 4; ++showing) {
            MainWindowModel run(store); // each showing in a run of its own
            run.shown();
            EXPECT_EQ(run.showsWelcome(), showing < 3 && showing <= showingsUntilDismissed) << showing;
            if (showing == showingsUntilDismissed)
                run.setShowWelcome(false);
        }
    }
}

TEST_F(MainWindowTest, GoesThroughItsTabsByKeysAndKeepsASearchForEach)
{
    MainWindow& window = opened();
    for (const auto& [key, tab] : {std::pair{Qt::Key_3, MainTab::wallpapers}, std::pair{Qt::Key_1, MainTab::themes},
             std::pair{Qt::Key_Comma, MainTab::settings}, std::pair{Qt::Key_Tab, MainTab::themes},
             std::pair{Qt::Key_2, MainTab::widgets}}) {
        press(window, key, Qt::ControlModifier);
        EXPECT_EQ(home.model.tab(), tab) << key;
    }
    auto* search = window.findChild<SearchField*>();
    EXPECT_EQ(search->accessibleName(), u"Search Widgets"_s);
    home.model.setSearch(MainTab::widgets, u"clock"_s);
    EXPECT_EQ(search->text(), u"clock"_s);
    press(window, Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(search->text(), QString());
    press(window, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(search->text(), u"clock"_s);
    press(window, Qt::Key_Escape);
    EXPECT_TRUE(home.window.isVisible()) << "Escape ends the search first";
    EXPECT_EQ(home.model.search(MainTab::widgets), QString());
    press(window, Qt::Key_Escape);
    EXPECT_FALSE(home.window.isVisible());
}

TEST_F(MainWindowTest, BackIsWhereOneCameFromInEitherDirection)
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        MainWindow& window = opened();
        const auto [back, other] = direction == Qt::LeftToRight ? std::pair(Qt::Key_Left, Qt::Key_Right)
                                                                : std::pair(Qt::Key_Right, Qt::Key_Left);
        const auto* arrow = window.findChild<ToolBar*>()->findChild<Button*>();
        EXPECT_EQ(arrow->accessibleName(), u"Back to Themes"_s);
        EXPECT_EQ(arrow->symbol(), direction == Qt::LeftToRight ? u"chevron.left"_s : u"chevron.right"_s);
        home.model.openTheme(Skin::neon);
        press(window, other, Qt::AltModifier);
        EXPECT_TRUE(home.model.isThemeOpen());
        press(window, back, Qt::AltModifier);
        EXPECT_FALSE(home.model.isThemeOpen());
        const QString keys = QKeySequence(Qt::ALT | back).toString(QKeySequence::NativeText);
        EXPECT_TRUE(std::ranges::any_of(
            sheets::shortcuts().table, [&](const SheetLine& line) { return line.subject == keys; }));
        window.close();
        QCoreApplication::processEvents();
    }
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

TEST_F(MainWindowTest, TheClearButtonOfTheSearchIsThereWhileThereIsText)
{
    MainWindow& window = opened();
    const auto* search = window.findChild<SearchField*>();
    const auto buttons = search->findChildren<QToolButton*>();
    const auto clear = std::ranges::find_if(buttons, [](const QToolButton* button) {
        return button->defaultAction() && button->defaultAction()->objectName() == "_q_qlineeditclearaction"_L1;
    });
    ASSERT_NE(clear, buttons.end());
    const auto opacity = [&] { return (*clear)->property("opacity").toDouble(); };
    home.model.setSearch(MainTab::themes, u"neon"_s);
    EXPECT_TRUE(waitUntil([&] { return opacity() == 1; }));
    home.model.setTab(MainTab::widgets);
    EXPECT_TRUE(waitUntil([&] { return opacity() == 0; })) << "it would clear nothing";
    EXPECT_EQ(home.model.search(MainTab::themes), u"neon"_s);
}

TEST_F(MainWindowTest, AClickOnATabLeavesNoRing)
{
    MainWindow& window = opened();
    window.findChild<CardView*>()->setFocus(Qt::MouseFocusReason);
    auto* tabs = window.findChild<TabStrip*>();
    const QPoint place = tabs->mapTo(&window, tabs->tabRect(1).center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    ASSERT_EQ(home.model.tab(), MainTab::widgets);
    EXPECT_FALSE(FocusRing::shared().isShown());
    press(window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(FocusRing::shared().isShown()) << "a shortcut brought the keyboard there";
}

TEST_F(MainWindowTest, EnterInTheSearchChoosesWhatWasFoundAndDoesNothingElse)
{
    MainWindow& window = opened();
    auto* search = window.findChild<SearchField*>();
    const auto widgets = home.desk.manager.controllers().size();
    for (const auto& [tab, text] : {std::pair(MainTab::themes, u"neon"_s), std::pair(MainTab::widgets, u"clock"_s),
             std::pair(MainTab::wallpapers, u"neon"_s), std::pair(MainTab::settings, u"animations"_s)}) {
        home.model.setTab(tab);
        for (const QString& blank : {QString(), u"  "_s}) {
            home.model.setSearch(tab, blank);
            search->setFocus();
            press(*search, Qt::Key_Return);
            EXPECT_TRUE(search->hasFocus()) << "nothing was searched for";
        }
        home.model.setSearch(tab, text);
        press(*search, Qt::Key_Return);
        EXPECT_FALSE(search->hasFocus()) << qPrintable(text);
        EXPECT_FALSE(home.model.isThemeOpen());
        EXPECT_FALSE(home.undo.isShown()) << "something was done to the desktop";
        EXPECT_EQ(home.desk.manager.controllers().size(), widgets);
        EXPECT_FALSE(home.sheets.current());
    }
    home.model.setTab(MainTab::themes);
    home.model.setSearch(MainTab::themes, u"neon"_s);
    home.model.openTheme(Skin::paper);
    press(*search, Qt::Key_Return);
    EXPECT_FALSE(home.model.isThemeOpen()) << "what was found is behind the page";
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(Skin::neon));
}

TEST_F(MainWindowTest, TheKeyboardGoesIntoTheBarAndComesBack)
{
    MainWindow& window = opened();
    auto* bar = window.findChild<UndoBar*>();
    auto* grid = window.findChild<CardView*>();
    const auto title = [&] {
        const auto* button = qobject_cast<Button*>(QApplication::focusWidget());
        return button && bar->isAncestorOf(button) ? button->title() + button->accessibleName() : QString();
    };
    for (const bool fails : {false, true}) {
        grid->setFocus();
        if (fails)
            home.undo.fail(u"“notes.txt” isn't a picture"_s);
        else
            home.undo.offer({u"Clock removed"_s, {}});
        press(*grid, Qt::Key_F6);
        EXPECT_EQ(title(), fails ? u"Dismiss"_s : u"Undo"_s);
        home.desk.clock.advance(std::chrono::minutes(1));
        EXPECT_TRUE(home.undo.isShown()) << "gone from under the keyboard";
        press(*QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(home.undo.isShown());
        ASSERT_TRUE(home.window.isVisible()) << "one key did two things";
        EXPECT_EQ(QApplication::focusWidget(), grid);
    }
}

TEST_F(MainWindowTest, ASearchThatCoversTheTabsTakesTheKeyboardInTheirPlace)
{
    ToolBar bar(home.model, [] { return QList<ActionItem>(); });
    bar.resize(640, 56);
    bar.show();
    bar.takeFocus();
    EXPECT_TRUE(qobject_cast<QTabBar*>(bar.focusWidget()));
    home.model.setSearch(MainTab::themes, u"neon"_s);
    bar.takeFocus();
    EXPECT_TRUE(qobject_cast<SearchField*>(bar.focusWidget()));
}

TEST_F(MainWindowTest, PlacesItsToolsApartAtEveryWidth)
{
    ToolBar bar(home.model, [] { return QList<ActionItem>(); });
    bar.show();
    for (const bool themeOpen : {false, true}) {
        home.model.openTheme(Skin::neon);
        if (!themeOpen)
            home.model.closeTheme();
        for (int width = 560; width <= 2000; width += 20) {
            bar.resize(width, 56);
            QList<QWidget*> tools;
            for (QWidget* tool : bar.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
                if (tool->isVisible() && !tool->isWindow())
                    tools.append(tool);
            }
            for (const QWidget* tool : tools) {
                EXPECT_TRUE(bar.rect().contains(tool->geometry())) << width << ' ' << tool->metaObject()->className();
                for (const QWidget* other : tools)
                    EXPECT_TRUE(tool == other || !tool->geometry().intersects(other->geometry()))
                        << width << ' ' << tool->metaObject()->className() << ' ' << other->metaObject()->className();
            }
            const auto* tabs = bar.findChild<TabStrip*>();
            if (width >= 1060) {
                EXPECT_LE(std::abs(tabs->geometry().center().x() - width / 2), 1) << width;
            }
            EXPECT_EQ(bar.findChild<SearchField*>()->isVisible(), width >= 760) << width;
        }
    }
}

TEST_F(MainWindowTest, OffersTheQuickActionsWithoutATray)
{
    const auto titles = [&] {
        QStringList lines;
        for (const ActionItem& item : moreItems(home.quick, {}))
            lines.append(item.isSeparator() ? u"-"_s : item.title);
        return lines.join(u'|');
    };
    EXPECT_EQ(titles(),
        u"Start Focus|-|Edit & Move Widgets|Lock Widget Positions|-|Weather|Save Current Desktop|Import…|-|"
        "Keyboard Shortcuts|Quit Ambrelle"_s);
    home.updates = {.found = u"2.1"_s, .enabled = true};
    EXPECT_THAT(titles().toStdString(), testing::StartsWith("Update to Ambrelle 2.1|-|Start Focus"));
    EXPECT_THAT(titles().toStdString(), testing::EndsWith("Check for Updates…|Quit Ambrelle"));
}

} // namespace
} // namespace ambrelle
