// SPDX-License-Identifier: MIT

#include "window/wallpapers/WallpapersPage.h"

#include "support/TestFolder.h"
#include "support/WaitUntil.h"
#include "window/cards/CardView.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/look/Segments.h"
#include "window/wallpapers/ScreenStrip.h"
#include "window/WindowDesk.h"

#include <QAccessible>
#include <QComboBox>
#include <QFileDialog>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct WallpapersPageTest : WindowTest {
    using Custom = WallpaperShuffle::Custom;

    TestFolder folder;
    CardView* view = nullptr;

    WallpapersPageTest()
    {
        desk().picture.shown = {{desk().host.screens().first().connector, u"/home/me/beach.jpg"_s}};
        desk().picture.memory = {{u"was"_s, u"beach"_s}};
    }
    Desk& desk() { return home.desk; }
    QString addPicture(const QString& name) const
    {
        QImage image(32, 20, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        EXPECT_TRUE(image.save(folder.filePath(name), "PNG"));
        return folder.filePath(name);
    }
    void open()
    {
        view = opened(MainTab::wallpapers).findChild<CardView*>();
        ASSERT_TRUE(view);
        QCoreApplication::processEvents();
    }
    template <typename T> T* part() { return home.window.window()->findChild<T*>(); }
    Button* button(const QString& name)
    {
        for (auto* button : home.window.window()->findChildren<Button*>()) {
            if (button->accessibleName() == name)
                return button;
        }
        return nullptr;
    }
    const WallpapersModel& model() const { return *static_cast<const WallpapersModel*>(view->model()); }
    Card card(const WallpaperChoice& wallpaper) const { return cardAt(model().indexOf(wallpaper)); }
    void click(const WallpaperChoice& wallpaper) const
    {
        view->choose(model().indexOf(wallpaper));
        press(*view, Qt::Key_Return);
    }
    QStringList own() { return desk().settings.customWallpapers(); }
    bool told(const QString& text)
    {
        return waitUntil([&] { return home.undo.text() == text; });
    }
    Page& page() { return *part<WallpapersPage>(); }
};

TEST_F(WallpapersPageTest, AClickSetsAWallpaperAndUndoBringsBackWhatWas)
{
    open();
    EXPECT_FALSE(button(u"Bring Back My Picture"_s)->isVisible()) << "nothing is remembered";
    click(Skin::neon);
    ASSERT_TRUE(told(u"Wallpaper set to Neon"_s));
    EXPECT_EQ(card(Skin::neon).pill, u"On Desktop");
    EXPECT_EQ(desk().wallpaper.currentSkin(), Skin::neon);
    EXPECT_TRUE(button(u"Bring Back My Picture"_s)->isVisible());
    home.undo.undo();
    EXPECT_EQ(desk().picture.givenBack, QList<QJsonObject>{desk().picture.memory});
    EXPECT_TRUE(card(Skin::neon).pill.isEmpty());
    EXPECT_FALSE(button(u"Bring Back My Picture"_s)->isVisible()) << "as it was";
}

TEST_F(WallpapersPageTest, BringsBackTheUsersOwnPicture)
{
    open();
    click(Skin::neon);
    ASSERT_TRUE(told(u"Wallpaper set to Neon"_s));
    button(u"Bring Back My Picture"_s)->click();
    ASSERT_TRUE(told(u"Your own picture is back"_s));
    EXPECT_FALSE(desk().wallpaper.hasPrevious());
    home.undo.undo();
    EXPECT_TRUE(desk().wallpaper.hasPrevious()) << "the way back stays open";

    desk().picture.failure = u"The disk is full."_s;
    button(u"Bring Back My Picture"_s)->click();
    ASSERT_TRUE(told(u"The disk is full."_s));
    desk().picture.failure.clear();
    home.undo.tryAgain();
    EXPECT_TRUE(told(u"Your own picture is back"_s));
}

TEST_F(WallpapersPageTest, OfTwoClicksTheLaterOneWins)
{
    open();
    desk().picture.isDeferred = true;
    click(Skin::neon);
    click(Skin::paper);
    desk().clock.advance(std::chrono::milliseconds(149));
    EXPECT_EQ(card(Skin::paper).state, Card::State::idle) << "what takes no moment shows no ring";
    desk().clock.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(card(Skin::neon).state, Card::State::idle);
    EXPECT_EQ(card(Skin::paper).state, Card::State::working);
    EXPECT_EQ(card(Skin::paper).notice, u"Painting…");
    for (const Skin skin : {Skin::paper, Skin::neon}) {
        view->choose(model().indexOf(skin));
        press(*view, Qt::Key_F10, Qt::ShiftModifier);
        ASSERT_TRUE(QApplication::activePopupWidget());
        EXPECT_EQ(QApplication::activePopupWidget()->actions().first()->isEnabled(), skin == Skin::neon);
        QApplication::activePopupWidget()->close();
    }
    ASSERT_TRUE(waitUntil([this] {
        desk().picture.answer();
        return desk().wallpaper.currentSkin() == Skin::paper;
    }));
    EXPECT_EQ(home.undo.text(), u"Wallpaper set to Paper");
    EXPECT_EQ(card(Skin::paper).state, Card::State::working) << "a ring does not flash";
    desk().clock.advance(std::chrono::milliseconds(300));
    EXPECT_EQ(card(Skin::paper).state, Card::State::idle);
    EXPECT_EQ(card(Skin::paper).pill, u"On Desktop");
    for (const QList<ScreenPicture>& set : std::as_const(desk().picture.sets))
        EXPECT_EQ(Wallpaper::skinOf(set.first().file), Skin::paper) << "the other one is not wanted any more";
}

TEST_F(WallpapersPageTest, AFailureIsToldAndTriedAgainWhileThePillStays)
{
    open();
    click(Skin::neon);
    ASSERT_TRUE(told(u"Wallpaper set to Neon"_s));
    desk().picture.failure = u"The desktop does not answer."_s;
    click(Skin::paper);
    ASSERT_TRUE(told(u"The desktop does not answer."_s));
    EXPECT_EQ(card(Skin::neon).pill, u"On Desktop");
    EXPECT_TRUE(card(Skin::paper).pill.isEmpty());
    desk().picture.failure.clear();
    home.window.toggle(); // the bar outlives the page
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    home.undo.tryAgain();
    ASSERT_TRUE(waitUntil([this] { return desk().wallpaper.currentSkin() == Skin::paper; }));
    EXPECT_EQ(home.undo.failure(), nullptr);
}

TEST_F(WallpapersPageTest, WhatFailsLateCannotComeOverTheNextOne)
{
    WallpaperActions actions(home.context);
    desk().picture.isDeferred = true;
    desk().picture.failure = u"The desktop does not answer."_s;
    actions.set(Skin::neon);
    ASSERT_TRUE(waitUntil([this] {
        desk().picture.answer();
        return !desk().picture.sets.isEmpty();
    }));
    actions.set(Skin::paper);
    desk().picture.answer();
    ASSERT_TRUE(home.undo.failure());
    EXPECT_EQ(home.undo.text(), desk().picture.failure);
    EXPECT_FALSE(home.undo.failure()->tryAgain);
}

TEST_F(WallpapersPageTest, SetsOneScreenWhereTheyAreToldApartAndAllOnceItIsUnplugged)
{
    const ScreenInfo left = desk().host.screens().first();
    desk().show({left, rightScreen});
    open();
    auto* strip = part<ScreenStrip>();
    auto* target = qobject_cast<QComboBox*>(strip->controls().first());
    ASSERT_TRUE(target->isVisible());
    target->setCurrentIndex(2);
    Q_EMIT target->activated(2);
    EXPECT_EQ(home.model.wallpaperTarget(), rightScreen.id);
    click(Skin::neon);
    ASSERT_TRUE(told(u"Wallpaper set to Neon"_s));
    ASSERT_EQ(desk().picture.sets.size(), 1);
    EXPECT_EQ(desk().picture.sets.first().size(), 1);
    EXPECT_EQ(desk().picture.sets.first().first().connector, rightScreen.connector);
    EXPECT_EQ(card(Skin::neon).pill, u"On Desktop") << "of a screen that is not the main one too";
    QStringList said;
    for (const auto* screen : strip->findChildren<ScreenPreview*>())
        said.append(screen->accessibleName());
    EXPECT_TRUE(said.contains(u"second shows Neon"_s)) << said.join(u", "_s).toStdString();
    EXPECT_TRUE(said.contains(left.connector + u" shows beach.jpg"_s)) << said.join(u", "_s).toStdString();

    desk().host.setScreens({left});
    EXPECT_EQ(home.model.wallpaperTarget(), QString());
    EXPECT_FALSE(target->isVisible());
    desk().picture.hasOneForEach = false;
    desk().show({left, rightScreen});
    EXPECT_FALSE(target->isVisible()) << "it could not be kept";
}

TEST_F(WallpapersPageTest, KnowsWhatFailedBeforeTheWindowWasClosed)
{
    const Custom broken{folder.write(u"broken.png"_s, "no picture")};
    desk().settings.customWallpapers.set({broken.path});
    home.model.setWallpapersScope(WallpapersScope::mine);
    open();
    const auto isMarked = [&] {
        view->viewport()->update();
        return card(broken).state == Card::State::failed;
    };
    EXPECT_TRUE(waitUntil(isMarked));
    home.window.toggle();
    QCoreApplication::processEvents();
    open();
    EXPECT_TRUE(waitUntil(isMarked));
}

TEST_F(WallpapersPageTest, AddsPicturesInFrontAndTakesThemOff)
{
    const QString old = addPicture(u"old.png"_s);
    const QString first = addPicture(u"first.png"_s);
    desk().settings.customWallpapers.set({old});
    home.model.setWallpapersScope(WallpapersScope::themes);
    open();
    EXPECT_EQ(page().invitation({u"/home/me/a.JPG"_s, u"/home/me/notes.txt"_s}), u"Drop to add to My Wallpapers");
    EXPECT_EQ(page().invitation({u"/home/me/notes.txt"_s}), QString());
    const QString notes = folder.write(u"notes.png"_s, "no picture");
    page().drop({first, notes, old, first});
    ASSERT_TRUE(told(u"“notes.png” isn't a picture"_s));
    EXPECT_EQ(own(), QStringList({first, old}));
    EXPECT_EQ(model().wallpaper(view->currentIndex()), WallpaperChoice(Custom{first})) << "seen, in another section";
    home.undo.dismiss();
    EXPECT_EQ(home.undo.text(), u"1 picture added");
    home.undo.undo();
    EXPECT_EQ(own(), QStringList{old});
    page().drop({old, first});
    ASSERT_TRUE(waitUntil([this] { return own().size() == 2; }));
    EXPECT_EQ(model().wallpaper(view->currentIndex()), WallpaperChoice(Custom{first})) << "the new one";
    home.undo.undo();
    home.undo.dismiss();

    home.model.setWallpapersScope(WallpapersScope::mine);
    view->choose(model().indexOf(Custom{old}));
    press(*view, Qt::Key_Delete);
    EXPECT_EQ(own(), QStringList());
    EXPECT_EQ(home.undo.text(), u"Removed from My Wallpapers");
    EXPECT_TRUE(QFile::exists(old));
    press(*home.window.window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(own(), QStringList{old});

    view->choose(model().index(model().rowCount() - 1));
    press(*view, Qt::Key_Return);
    EXPECT_TRUE(home.window.window()->findChild<QFileDialog*>()) << "the dashed tile adds too";
}

TEST_F(WallpapersPageTest, ChosenPicturesAreAddedThoughTheWindowIsClosedAtOnce)
{
    const QString first = addPicture(u"first.png"_s);
    open();
    page().drop({first});
    home.window.toggle();
    QCoreApplication::sendPostedEvents(&home.window, QEvent::MetaCall); // before any answer comes
    ASSERT_FALSE(home.window.window());
    ASSERT_TRUE(told(u"1 picture added"_s));
    EXPECT_EQ(own(), QStringList{first});
}

TEST_F(WallpapersPageTest, AFileThatHasGoneCannotBeSetButTakenOff)
{
    const QString there = addPicture(u"there.png"_s);
    const QString gone = folder.filePath(u"gone.png"_s);
    desk().settings.customWallpapers.set({gone, there});
    open();
    ASSERT_TRUE(waitUntil([&] { return !card(Custom{gone}).usable; }));
    click(Custom{gone});
    EXPECT_TRUE(desk().picture.sets.isEmpty());
    press(*view, Qt::Key_Delete);
    EXPECT_EQ(own(), QStringList{there});
    ASSERT_TRUE(waitUntil([&] { return card(Custom{there}).picture == there; }));
    click(Custom{there});
    ASSERT_TRUE(told(u"Wallpaper set to there.png"_s));
    EXPECT_EQ(card(Custom{there}).pill, u"On Desktop");

    home.programs.failure = u"There is no file manager."_s;
    WallpaperActions(home.context).showInFolder(there);
    EXPECT_EQ(home.programs.shownFiles, QStringList{there});
    EXPECT_EQ(home.undo.text(), home.programs.failure);
}

TEST_F(WallpapersPageTest, ASearchWithoutHitsSaysSoAndOffersAWayOut)
{
    home.model.setWallpapersScope(WallpapersScope::mine);
    open();
    auto* nothing = part<EmptyState>();
    EXPECT_FALSE(nothing->isVisible()) << "there is the dashed tile";
    home.model.setSearch(MainTab::wallpapers, u"neon"_s);
    EXPECT_TRUE(nothing->isVisible());
    const auto isThere = [&] { return nothing->isAncestorOf(QApplication::focusWidget()); };
    QCoreApplication::processEvents();
    page().takeFocus(true);
    EXPECT_TRUE(isThere());
    press(*home.window.window(), Qt::Key_F6);
    EXPECT_FALSE(isThere());
    for (int step = 0; step < 4 && !isThere(); ++step)
        press(*home.window.window(), Qt::Key_F6);
    EXPECT_TRUE(isThere()) << "out of reach of the keyboard";
    nothing->findChildren<Button*>().last()->click();
    EXPECT_FALSE(nothing->isVisible());
    EXPECT_EQ(cardAt(model().firstWallpaper()).title, u"Neon");
}

TEST_F(WallpapersPageTest, EverythingStaysInsideItsPlaceAtEveryWidth)
{
    desk().show({desk().host.screens().first(), rightScreen});
    desk().wallpaper.apply(Skin::neon);
    ASSERT_TRUE(waitUntil([this] { return desk().wallpaper.hasPrevious(); }));
    for (const double scale : {1.0, 1.5}) {
        AppLook::shared().apply({.textScale = scale});
        for (const int width : {720, 800, 1120}) {
            open();
            home.window.window()->resize(width, 480);
            QCoreApplication::processEvents();
            const QRect inside = page().rect();
            QList<QWidget*> controls = part<ScreenStrip>()->controls();
            for (const char* name : {"Bring Back My Picture", "Add Pictures…"})
                controls.append(button(QString::fromUtf8(name)));
            controls.append(part<Segments>());
            for (auto* screen : part<ScreenStrip>()->findChildren<ScreenPreview*>())
                controls.append(screen);
            for (const QWidget* control : std::as_const(controls)) {
                const QRect place(control->mapTo(&page(), QPoint()), control->size());
                EXPECT_TRUE(inside.left() <= place.left() && place.right() <= inside.right())
                    << control->accessibleName().toStdString() << " at " << width << ", " << scale;
            }
        }
    }
    AppLook::shared().apply({});
}

} // namespace
} // namespace ambrelle
