// SPDX-License-Identifier: MIT

#include "window/themes/ThemePage.h"
#include "support/WaitUntil.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/FocusRing.h"
#include "window/look/Progress.h"
#include "window/themes/AccentPicker.h"
#include "window/themes/AccentSwatch.h"
#include "window/themes/Filmstrip.h"
#include "window/themes/ThemeButtons.h"
#include "window/themes/ThemeDetails.h"
#include "window/themes/ThemeFacts.h"
#include "window/themes/ThemeHead.h"
#include "window/themes/ThemePageLayout.h"
#include "window/themes/ThemePicture.h"
#include "window/themes/ThemesModel.h"
#include "window/WindowDesk.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

TEST(ThemePageLayoutTest, FillsThePageWithThePictureAndOverlapsNothing)
{
    for (int width = 720; width <= 3000; width += 57) {
        for (int height = 424; height <= 1600; height += 49) {
            const ThemePageWants wants{.page = {width, height}, .columnHeight = 420};
            const auto layout = ThemePageLayout::of(wants);
            const QRect page({}, wants.page);
            const int margin = width < 900 ? 20 : 24;
            EXPECT_TRUE(
                layout.picture.width() == width - 2 * margin - 332 || layout.picture.height() >= height - 48 - 1)
                << width << ' ' << height;
            EXPECT_TRUE(page.contains(layout.picture.united(layout.column))) << width << ' ' << height;
            EXPECT_EQ(layout.column.left() - layout.picture.right() - 1, 28);
            EXPECT_EQ(layout.column.top(), layout.picture.top());
            EXPECT_TRUE(layout.picture.height() < 420 || layout.column.bottom() == layout.picture.bottom())
                << "its foot is level";
            const bool hasRoom = height - 48 - layout.picture.height() >= 96;
            EXPECT_EQ(!layout.strip.isEmpty(), hasRoom) << width << ' ' << height;
            EXPECT_TRUE(!layout.strip.intersects(layout.picture) && !layout.strip.intersects(layout.column)
                && (layout.strip.isEmpty() || page.contains(layout.strip)))
                << width << ' ' << height;
        }
    }
}

struct ThemePageTest : WindowTest {
    ThemesModel model{home.context};
    std::unique_ptr<ThemePage> page;

    ThemePageTest()
    {
        AppLook::shared().apply({.reducesMotion = true});
        FocusRing::shared(); // it sees how the focus comes
    }
    ~ThemePageTest() override { AppLook::shared().apply({}); }

    /// The page of that theme in a window of that size.
    void show(const ThemeChoice& theme, QSize size = {1120, 704})
    {
        home.model.openTheme(theme);
        page = std::make_unique<ThemePage>(home.context, model);
        page->resize(size);
        page->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page.get()));
        page->takeFocus();
    }
    SavedTheme save(const QString& name, std::optional<Skin> wallpaper)
    {
        SavedTheme theme{.id = QUuid::createUuid(),
            .name = name,
            .created = QDateTime({2026, 11, 14}, {12, 0}),
            .wallpaper = wallpaper,
            .widgets = {{WidgetConfig(WidgetKind::clock, Skin::lumen)}, {WidgetConfig(WidgetKind::cpu, Skin::lumen)}}};
        EXPECT_TRUE(home.themes.add(theme));
        return theme;
    }
    Button* button(const QString& text) const
    {
        for (Button* each : page->findChildren<Button*>()) {
            if (each->title() == text || each->accessibleName() == text)
                return each;
        }
        ADD_FAILURE() << text.toStdString();
        return nullptr;
    }
    ThemePicture& picture() const { return *page->findChild<ThemePicture*>(); }
    QString name() const { return page->findChild<NameLabel*>()->text(); }
    Skin shown() const { return std::get<Skin>(*home.model.chosenTheme()); }
};

TEST_F(ThemePageTest, TellsWhatBelongsToATheme)
{
    const auto hifi = ThemeFacts::of(Skin::hifi, home.themes);
    ASSERT_TRUE(hifi);
    EXPECT_EQ(hifi->tagline, u"Nixie tubes, VU needles and a tuner dial"_s);
    EXPECT_EQ(hifi->kinds.size(), 13);
    EXPECT_FALSE(hifi->isLight);
    const SavedTheme own = save(u"Evening Desk"_s, std::nullopt);
    const auto saved = ThemeFacts::of(own.id, home.themes);
    ASSERT_TRUE(saved);
    EXPECT_TRUE(saved->tagline.startsWith(u"Saved "_s) && saved->tagline.contains(u"2026"_s))
        << saved->tagline.toStdString();
    EXPECT_TRUE(saved->isLight) << "as most of its widgets are";
    EXPECT_EQ(saved->kinds, (QList{WidgetKind::clock, WidgetKind::cpu}));
    EXPECT_FALSE(ThemeFacts::of(QUuid::createUuid(), home.themes));
}

TEST_F(ThemePageTest, TurnsToTheNeighboursOfSectionAndSearch)
{
    home.model.setThemesSection(ThemesSection::minimal);
    show(Skin::glass);
    const auto flick = [this](Qt::Key key) {
        press(*page, key);
        return shown();
    };
    EXPECT_EQ(flick(Qt::Key_Left), Skin::glass) << "the first of its section";
    EXPECT_FALSE(button(u"Previous Theme"_s)->isEnabled());
    EXPECT_EQ(flick(Qt::Key_Right), Skin::polar);
    EXPECT_EQ(name(), u"Polar"_s);
    button(u"Next Theme"_s)->click();
    EXPECT_EQ(shown(), Skin::mono);
    home.model.setSearch(MainTab::themes, u"field"_s);
    home.model.openTheme(Skin::field);
    EXPECT_EQ(flick(Qt::Key_Right), Skin::fieldDark);
    EXPECT_EQ(flick(Qt::Key_Right), Skin::fieldDark) << "the last that was found";
    home.model.setSearch(MainTab::themes, {});
    page->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(flick(Qt::Key_Right), Skin::field) << "rightwards is backwards";
    QTest::keyClick(page->findChildren<AccentSwatch*>().first(), Qt::Key_Left);
    EXPECT_EQ(shown(), Skin::field) << "arrows move among the swatches";
}

TEST_F(ThemePageTest, KeepsTheCurrentOneInTheMiddleOfTheStrip)
{
    show(Skin::chalk);
    auto* strip = page->findChild<Filmstrip*>();
    const auto offCentre = [&] {
        QListView& view = strip->view();
        return std::abs(view.visualRect(view.currentIndex()).center().x() - view.viewport()->rect().center().x());
    };
    EXPECT_EQ(strip->view().model()->rowCount(), 30) << "without headings";
    EXPECT_LE(offCentre(), 1);
    home.model.openTheme(Skin::kyoto);
    EXPECT_LE(offCentre(), 1);
    page->resize(800, 504);
    QCoreApplication::processEvents();
    EXPECT_LE(offCentre(), 1);
    page->setLayoutDirection(Qt::RightToLeft);
    home.model.openTheme(Skin::chalk);
    QCoreApplication::processEvents();
    EXPECT_LE(offCentre(), 1);
}

TEST_F(ThemePageTest, ShowsAllThatIsSaidWhereThereIsRoom)
{
    show(Skin::polar, {800, 504});
    for (const Skin skin : {Skin::neon, Skin::overdrive, Skin::quest}) { // with more lines than the one before
        home.model.openTheme(skin);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        const auto& details = *page->findChild<ThemeDetails*>();
        EXPECT_EQ(details.height(), details.parentWidget()->height());
        EXPECT_GE(details.height(), details.heightForWidth(details.width())) << qPrintable(name());
    }
}

TEST_F(ThemePageTest, LeadsToTheCounterpartThoughTheGridHidesIt)
{
    home.model.setThemesSection(ThemesSection::concept_);
    home.model.setSearch(MainTab::themes, u"editorial"_s);
    show(Skin::paper);
    button(u"Dark counterpart: Mono"_s)->click();
    EXPECT_EQ(name(), u"Mono"_s);
    EXPECT_TRUE(model.indexOf(Skin::mono).isValid()) << "it has neighbours";
    button(u"Light counterpart: Paper"_s)->click();
    EXPECT_EQ(name(), u"Paper"_s);
    home.model.openTheme(Skin::neon);
    EXPECT_FALSE(button(u"Dark counterpart: Mono"_s)->isVisible());
}

TEST_F(ThemePageTest, OffersForASavedThemeWhatItHas)
{
    const SavedTheme bare = save(u"Bare"_s, std::nullopt);
    show(bare.id);
    EXPECT_FALSE(button(u"Apply with Wallpaper"_s)->isEnabled());
    EXPECT_EQ(button(u"Set Wallpaper Only"_s)->toolTip(), u"This theme has no wallpaper"_s);
    EXPECT_EQ(button(u"Apply, Keep My Wallpaper"_s)->kind(), Button::Kind::primary);
    EXPECT_FALSE(page->findChild<AccentPicker*>()->isVisible());
    const SavedTheme full = save(u"Full"_s, Skin::neon);
    home.model.openTheme(full.id);
    EXPECT_EQ(button(u"Apply with Wallpaper"_s)->kind(), Button::Kind::primary);
    EXPECT_TRUE(button(u"Set Wallpaper Only"_s)->isEnabled());
}

TEST_F(ThemePageTest, RenamesInPlaceAndLeavesWhenItsThemeIsDeleted)
{
    const SavedTheme own = save(u"Desk"_s, Skin::neon);
    show(own.id);
    const auto type = [this](const QString& text, Qt::Key end) {
        press(*page, Qt::Key_F2);
        auto* editor = page->findChild<QLineEdit*>();
        ASSERT_TRUE(editor);
        EXPECT_EQ(editor->selectedText(), name());
        QTest::keyClicks(editor, text);
        press(*editor, end);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    type(u"Evening"_s, Qt::Key_Escape);
    EXPECT_EQ(home.themes.themes().first().name, u"Desk"_s);
    type(u"Evening"_s, Qt::Key_Return);
    EXPECT_EQ(home.themes.themes().first().name, u"Evening"_s);
    EXPECT_EQ(name(), u"Evening"_s);
    EXPECT_TRUE(page->isAncestorOf(QApplication::focusWidget())) << "the arrow keys work on";
    home.themes.remove(own.id);
    EXPECT_FALSE(home.model.isThemeOpen());
}

TEST_F(ThemePageTest, PutsWidgetsWhereItIsToldWhileThatScreenIsThere)
{
    show(Skin::neon);
    auto* places = page->findChild<QComboBox*>();
    auto& details = *page->findChild<ThemeDetails*>();
    EXPECT_FALSE(places->isVisible()) << "there is nothing to choose";
    const QList<ScreenInfo> one = home.desk.host.screens();
    home.desk.show(one + QList{rightScreen});
    EXPECT_TRUE(places->isVisible());
    EXPECT_EQ(details.target(), ThemeTarget{});
    places->setCurrentIndex(1);
    EXPECT_EQ(details.target().kind, ThemeTarget::Kind::every);
    places->setCurrentIndex(places->findText(u"Only second"_s));
    const ThemeTarget second{.kind = ThemeTarget::Kind::one, .screen = rightScreen.id};
    EXPECT_EQ(details.target(), second);
    press(*page, Qt::Key_Right);
    EXPECT_EQ(details.target(), second) << "for the next theme too";
    home.desk.show(one);
    EXPECT_EQ(details.target(), ThemeTarget{}) << "it was unplugged";
    EXPECT_FALSE(places->isVisible());
}

TEST_F(ThemePageTest, ShowsWhatIsAtWorkAndGivesTheKeyboardBack)
{
    show(Skin::neon);
    auto& buttons = *page->findChild<ThemeButtons*>();
    Button* pressed = button(u"Set Wallpaper Only"_s);
    pressed->setFocus();
    buttons.setState({.hasWallpaper = true, .working = ThemeOperation::setWallpaper, .theme = u"Neon"_s});
    EXPECT_EQ(pressed->title(), u"Painting the wallpaper…"_s);
    EXPECT_FALSE(pressed->isEnabled() || button(u"Apply with Wallpaper"_s)->isEnabled());
    const auto* ring = buttons.findChild<Progress*>();
    EXPECT_EQ(ring->accessibleName(), u"Painting Neon"_s);
    EXPECT_TRUE(ring->isVisible() && pressed->geometry().contains(ring->geometry()));
    buttons.setState({});
    EXPECT_FALSE(ring->isVisible());
    EXPECT_EQ(pressed->title(), u"Set Wallpaper Only"_s);
    EXPECT_TRUE(pressed->hasFocus());
}

TEST_F(ThemePageTest, TellsCutNamesOfTheStripWhole)
{
    const SavedTheme own = save(u"A desktop with <b>many</b> words"_s, Skin::neon);
    show(own.id);
    EXPECT_EQ(page->findChild<Progress*>()->accessibleName(), u"Painting "_s + own.name);
    QListView& view = page->findChild<Filmstrip*>()->view();
    const auto tipOf = [&](const QModelIndex& index) {
        QHelpEvent help(QEvent::ToolTip, view.visualRect(index).center(), QPoint(5, 5));
        QCoreApplication::sendEvent(view.viewport(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tipOf(view.currentIndex()), u"<span>"_s + own.name.toHtmlEscaped() + u"</span>"_s);
    const QModelIndex before = view.model()->index(view.currentIndex().row() - 1, 0);
    EXPECT_TRUE(waitUntil([&] { return tipOf(before).isEmpty(); })) << "it is there to be read";
}

TEST_F(ThemePageTest, AnAccentMakesWhatWasDoneBeforeFinal)
{
    show(Skin::neon);
    home.undo.offer({u"Clock removed"_s, {}});
    QTest::mouseClick(page->findChildren<AccentSwatch*>().at(1), Qt::LeftButton);
    EXPECT_FALSE(home.desk.accents.hexOverrides().isEmpty());
    EXPECT_FALSE(home.undo.canUndo());
}

TEST_F(ThemePageTest, DrawsThePictureForItsPixelsAndTriesAccentsInIt)
{
    show(Skin::neon);
    ASSERT_TRUE(waitUntil([this] { return picture().isExact(); }));
    const QImage own = picture().grab().toImage();
    auto* cyan = page->findChildren<AccentSwatch*>().at(1);
    cyan->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    home.desk.clock.advance(150ms);
    ASSERT_TRUE(page->findChild<AccentPicker*>()->trial());
    EXPECT_FALSE(picture().isExact()) << "another one is wanted";
    EXPECT_EQ(picture().grab().toImage(), own) << "until that is there";
    ASSERT_TRUE(waitUntil([this] { return picture().isExact(); }));
    EXPECT_TRUE(home.desk.accents.hexOverrides().isEmpty());
    page->takeFocus();
    QCoreApplication::processEvents();
    EXPECT_TRUE(picture().isExact()) << "at once";
    EXPECT_EQ(picture().grab().toImage(), own);
    page->resize(1000, 640);
    EXPECT_FALSE(picture().isExact());
    home.desk.clock.advance(200ms);
    EXPECT_TRUE(waitUntil([this] { return picture().isExact(); }));
    page->hide();
    EXPECT_FALSE(picture().isExact()) << "large pictures go with the page";
}

} // namespace
} // namespace ambrelle
