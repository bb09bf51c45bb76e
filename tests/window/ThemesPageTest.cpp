// SPDX-License-Identifier: MIT

#include "window/themes/ThemesPage.h"
#include "support/WaitUntil.h"
#include "window/cards/CardView.h"
#include "window/frame/SearchField.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/themes/PageTransition.h"
#include "window/themes/ThemeFileDialogs.h"
#include "window/themes/ThemePage.h"
#include "window/themes/ThemesModel.h"
#include "window/themes/ThemeTexts.h"
#include "window/themes/Welcome.h"
#include "window/WindowDesk.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct PaintCounter : QObject {
    int count = 0;

    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

struct ThemesPageTest : WindowTest {
    Desk& desk = home.desk;

    QUuid save(const QString& name, Skin skin = Skin::neon)
    {
        SavedTheme theme{.id = QUuid::createUuid(), .name = name, .created = desk.clock.now()};
        theme.widgets = {{WidgetConfig(WidgetKind::cpu, skin)}, {WidgetConfig(WidgetKind::cpu, skin)}};
        home.themes.add(theme);
        return theme.id;
    }
    /// Headings with their captions, and how many cards follow.
    static QStringList outline(const ThemesModel& themes)
    {
        QStringList lines;
        for (int row = 0; row < themes.rowCount(); ++row) {
            const Card card = cardAt(themes.index(row));
            if (card.isHeading)
                lines.append(card.title + u": "_s + card.caption);
        }
        return lines;
    }
};

TEST_F(ThemesPageTest, ListsWhatSectionAndSearchLetThrough)
{
    ThemesModel themes(home.context);
    EXPECT_EQ(outline(themes), QStringList({u"Concept: 17 themes"_s, u"Minimal: 7 themes"_s, u"Modern: 6 themes"_s}));
    const QUuid older = save(u"Évening"_s);
    const QUuid newer = save(u"Work"_s, Skin::paper);
    EXPECT_EQ(outline(themes).last(), u"My Themes: 2 desktops"_s);
    const auto found = [&](ThemesSection section, const QString& search) {
        home.model.setThemesSection(section);
        home.model.setSearch(MainTab::themes, search);
        return themes.themes();
    };
    EXPECT_EQ(found(ThemesSection::mine, {}), QList<ThemeChoice>({newer, older})) << "the newest first";
    EXPECT_EQ(found(ThemesSection::mine, u"eVEN"_s), QList<ThemeChoice>{older}) << "without case and accents";
    EXPECT_EQ(found(ThemesSection::mine, u"light"_s), QList<ThemeChoice>{newer});
    EXPECT_EQ(found(ThemesSection::all, u"synth neon"_s), QList<ThemeChoice>{Skin::neon}) << "every word, anywhere";
    EXPECT_EQ(found(ThemesSection::all, u"moon sun"_s), QList<ThemeChoice>{Skin::velvet}) << "a widget's title";
    EXPECT_EQ(found(ThemesSection::minimal, u"neon"_s), QList<ThemeChoice>());
    EXPECT_TRUE(themes.hasHitsElsewhere());
    EXPECT_EQ(themes.countOf(ThemesSection::minimal), 7) << "whatever is searched for";
    EXPECT_EQ(found(ThemesSection::concept_, {}).size(), 17);
    EXPECT_EQ(outline(themes), QStringList{u"Concept: 17 themes"_s});
}

TEST_F(ThemesPageTest, ShowsHowThingsStandOnItsCards)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    const QUuid own = save(u"Work"_s, Skin::paper);
    ThemesModel themes(home.context);
    const auto card = [&](const ThemeChoice& theme) {
        QCoreApplication::processEvents();
        return cardAt(themes.indexOf(theme));
    };
    EXPECT_EQ(card(Skin::neon).pill, u"On Desktop"_s);
    EXPECT_EQ(card(Skin::paper).pill, QString());
    desk.manager.removeAll();
    EXPECT_EQ(card(Skin::neon).pill, QString());
    EXPECT_EQ(card(Skin::neon).dots.size(), 5);
    EXPECT_TRUE(card(Skin::aero).dots.isEmpty()) << "it keeps its own colours";
    const QString picture = card(Skin::neon).picture;
    desk.accents.set(QColor(0x26, 0xE6, 0xFF), Skin::neon);
    EXPECT_EQ(card(Skin::neon).dots.first(), QColor(0x26, 0xE6, 0xFF));
    QStringList dots;
    for (const QColor& dot : card(Skin::neon).dots)
        dots.append(hexText(dot));
    EXPECT_EQ(dots.removeDuplicates(), 0) << "the one in use is one of them";
    EXPECT_NE(card(Skin::neon).picture, picture) << "drawn in that accent";
    EXPECT_EQ(card(Skin::neon).description, u"Synthwave script, chrome numerals and neon tubes. Dark. Accent Cyan."_s);
    EXPECT_EQ(card(own).caption, u"2 widgets · "_s + mediumDate(desk.clock.now().date()));
    EXPECT_TRUE(card(own).renames);
    EXPECT_TRUE(themes.setData(themes.indexOf(own), u" Play "_s));
    EXPECT_EQ(home.themes.themes().first().name, u"Play"_s);
    EXPECT_FALSE(themes.setData(themes.indexOf(Skin::neon), u"Mine"_s));
}

TEST_F(ThemesPageTest, WritesDatesAsPeopleDo)
{
    const QLocale before;
    for (const auto& [locale, expected] :
        {std::pair{u"en_GB"_s, u"14 Nov 2026"_s}, std::pair{u"en_US"_s, u"Nov 14, 2026"_s}}) {
        QLocale::setDefault(QLocale(locale));
        EXPECT_EQ(mediumDate({2026, 11, 14}), expected);
    }
    QLocale::setDefault(before);
}

TEST_F(ThemesPageTest, KeepsTheChoiceWhileTheListChanges)
{
    const QUuid own = save(u"Work"_s);
    MainWindow& window = opened();
    auto& page = *window.findChild<ThemesPage*>();
    home.model.chooseTheme(Skin::neon);
    EXPECT_EQ(page.grid().currentIndex().data(), u"Neon"_s);
    home.model.setSearch(MainTab::themes, u"paper"_s);
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(Skin::neon)) << "out of sight";
    EXPECT_FALSE(page.grid().currentIndex().isValid());
    home.model.setSearch(MainTab::themes, {});
    EXPECT_EQ(page.grid().currentIndex().data(), u"Neon"_s);
    press(page.grid(), Qt::Key_Right);
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(Skin::bauhaus));

    home.model.setThemesSection(ThemesSection::mine);
    page.takeFocus(true);
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(own));
    press(page.grid(), Qt::Key_Delete);
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(home.sheets.current()->title, u"Delete “Work”?"_s);
}

TEST_F(ThemesPageTest, FindsByKeyboardAndOffersAWayOutOfNothing)
{
    MainWindow& window = opened();
    press(window, Qt::Key_F, Qt::ControlModifier);
    auto* search = window.findChild<SearchField*>();
    QTest::keyClicks(search, u"neon"_s);
    press(*search, Qt::Key_Down);
    auto& grid = window.findChild<ThemesPage*>()->grid();
    EXPECT_EQ(grid.currentIndex().data(), u"Neon"_s);
    press(grid, Qt::Key_Return);
    EXPECT_TRUE(home.model.isThemeOpen());
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(Skin::neon));
    home.model.closeTheme();

    home.model.setThemesSection(ThemesSection::minimal);
    auto* nothing = window.findChild<EmptyState*>();
    ASSERT_TRUE(nothing->isVisible());
    QStringList offers;
    for (const Button* button : nothing->findChildren<Button*>())
        offers.append(button->title());
    EXPECT_EQ(offers, QStringList({u"Clear Search"_s, u"Search in All"_s}));
    nothing->findChildren<Button*>().last()->click();
    EXPECT_EQ(home.model.themesSection(), ThemesSection::all);
    EXPECT_FALSE(nothing->isVisible());
    EXPECT_TRUE(grid.isVisible());
}

TEST_F(ThemesPageTest, TheMenuOffersWhatIsPossible)
{
    const QUuid own = save(u"Work"_s); // without a wallpaper
    MainWindow& window = opened();
    auto& page = *window.findChild<ThemesPage*>();
    const auto lines = [&](const ThemeChoice& theme) {
        QStringList titles;
        for (const ActionItem& item : page.menuOf(theme))
            titles.append(item.isSeparator() ? u"-"_s : item.enabled ? item.title : u'(' + item.title + u')');
        return titles.join(u'|');
    };
    EXPECT_EQ(lines(Skin::neon), u"Open|-|Apply with Wallpaper|Apply, Keep My Wallpaper|Set Wallpaper Only"_s);
    EXPECT_EQ(lines(own),
        u"Open|-|(Apply with Wallpaper)|Apply, Keep My Wallpaper|(Set Wallpaper Only)|-|Rename|Export…|Delete…"_s);
    desk.picture.isDeferred = true;
    home.themeActions.setWallpaper(Skin::neon);
    desk.clock.advance(std::chrono::milliseconds(150));
    EXPECT_EQ(lines(Skin::neon), u"Open|-|(Apply with Wallpaper)|(Apply, Keep My Wallpaper)|(Set Wallpaper Only)"_s)
        << "it is at work";
    EXPECT_EQ(lines(Skin::paper), u"Open|-|Apply with Wallpaper|Apply, Keep My Wallpaper|Set Wallpaper Only"_s);
    EXPECT_EQ(themeInvitation({u"/a.ambrelle"_s, u"/b.AMBRELLE"_s}), u"Drop to add to My Themes"_s);
    EXPECT_EQ(themeInvitation({u"/a.ambrelle"_s, u"/b.png"_s}), QString());
}

TEST_F(ThemesPageTest, TheWelcomeGoesWhenDismissedAndWhenAThemeIsApplied)
{
    for (const bool dismisses : {true, false}) {
        home.model.setShowWelcome(true);
        MainWindow& window = opened();
        auto* welcome = window.findChild<Welcome*>();
        ASSERT_TRUE(welcome && welcome->isVisible());
        if (dismisses)
            welcome->findChildren<Button*>().last()->click();
        else
            home.themeActions.apply(Skin::neon, false);
        EXPECT_FALSE(MainWindowModel(store).showsWelcome()) << "for good";
        EXPECT_FALSE(welcome->isVisible());
        home.window.toggle();
        QCoreApplication::processEvents();
    }
}

TEST_F(ThemesPageTest, TheWelcomeShowsTheDesktopAsItIsWhereThereIsRoom)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    home.model.setShowWelcome(true);
    MainWindow& window = opened();
    auto* welcome = window.findChild<Welcome*>();
    auto* picture = window.findChild<WelcomePicture*>();
    for (const int width : {880, 900, 899, 1120}) { // at 880 the cards are as wide as at 900
        window.resize(width, 700);
        EXPECT_TRUE(waitUntil([&] { return picture->isVisible() == (width >= 900); })) << width;
    }
    const auto says = [&](const QString& part) {
        return std::ranges::any_of(
            welcome->findChildren<QLabel*>(), [&](const QLabel* label) { return label->text().contains(part); });
    };
    EXPECT_TRUE(says(u"Start Ambrelle again"_s));
    home.model.setHasTray(true);
    EXPECT_TRUE(says(u"stays in the tray"_s)) << "it came later";
    ASSERT_TRUE(
        waitUntil([&] { return !home.shelf.standIn(PictureKey::desktop(home.snapshots.wish(Skin::neon))).isNull(); }));
    QCoreApplication::processEvents();
    PaintCounter paints(*picture);
    desk.manager.controllers().first()->setSkin(Skin::paper);
    EXPECT_TRUE(waitUntil([&] { return paints.count > 0; })) << "it shows what was on the desktop before";
}

TEST_F(ThemesPageTest, APageGrowsOutOfItsCardUnlessMotionIsNotWished)
{
    MainWindow& window = opened();
    auto* transition = window.findChild<PageTransition*>();
    EXPECT_FALSE(window.findChild<ThemePage*>()) << "nobody has opened one";
    for (const bool reduces : {false, true}) {
        AppLook::shared().apply({.reducesMotion = reduces});
        home.model.openTheme(Skin::neon);
        EXPECT_EQ(transition->isVisible(), !reduces);
        auto* page = window.findChild<ThemePage*>();
        EXPECT_TRUE(page->isVisible() && page->isAncestorOf(QApplication::focusWidget())) << "nothing waits for it";
        EXPECT_FALSE(window.findChild<CardView*>()->isVisible());
        EXPECT_EQ(window.childAt(page->mapTo(&window, page->rect().center()))->window(), &window);
        home.model.closeTheme(); // while it is still under way
        EXPECT_EQ(transition->isVisible(), !reduces);
        EXPECT_TRUE(window.findChild<CardView*>()->isVisible());
        EXPECT_TRUE(waitUntil([&] { return !transition->isVisible(); }));
    }
    AppLook::shared().apply({});
    home.model.openTheme(Skin::neon);
    EXPECT_TRUE(transition->isRunning());
    window.resize(window.size() + QSize(10, 0));
    EXPECT_TRUE(waitUntil([&] { return !transition->isRunning(); }));
}

TEST_F(ThemesPageTest, ExportsUnderANameWithADotAsAThemeFile)
{
    const QUuid own = save(u"Work"_s);
    MainWindow& window = opened();
    ThemeFileDialogs dialogs(home.themeActions, window);
    dialogs.exportTheme(own);
    auto* chooser = window.findChild<QFileDialog*>();
    ASSERT_TRUE(chooser);
    chooser->setDirectory(desk.folder.path());
    chooser->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(u"Desk 2.0"_s);
    QMetaObject::invokeMethod(chooser, "accept");
    EXPECT_TRUE(waitUntil([&] { return QFileInfo::exists(desk.folder.filePath(u"Desk 2.0.ambrelle"_s)); }));
}

} // namespace
} // namespace ambrelle
