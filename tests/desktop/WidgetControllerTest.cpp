// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using enum WidgetKind;

struct WidgetControllerTest : DeskTest {
    WidgetController* widget = desk.add(cpu, {100, 100});
    RecordingPanel* panel = desk.panels().first();
    int clicks = 0;

    void SetUp() override
    {
        QObject::connect(&desk.manager, &WidgetManager::clicked, &desk.manager, [this] { ++clicks; });
    }
};

TEST_F(WidgetControllerTest, ClicksDragsAndObeysTheLock)
{
    struct Case {
        const char* what;
        bool locked;
        QPointF by;
        QPointF origin;
        int clicks;
    };
    const Case cases[] = {
        {"three points are a click", false, {3, 0}, {100, 100}, 1},
        {"more are a drag and no click", false, {3.1, 0}, {103.1, 100}, 0},
        {"a long drag", false, {200, -60}, {300, 40}, 0},
        {"locked it stays, and the face hears the click", true, {60, 0}, {100, 100}, 1},
        {"locked and released outside the face", true, {600, 0}, {100, 100}, 0},
    };
    for (const Case& c : cases) {
        widget->change([](WidgetConfig& config) { config.origin = {100, 100}; });
        desk.settings.locked.set(c.locked);
        clicks = 0;
        desk.host.drag(QPointF(150, 150), QPointF(150, 150) + c.by, 1);
        EXPECT_EQ(widget->config().origin, c.origin) << c.what;
        EXPECT_EQ(panel->frame(), PanelGeometry::panelFrame(widget->widgetFrame())) << c.what;
        EXPECT_EQ(clicks, c.clicks) << c.what;
    }
    desk.manager.setEditing(true);
    desk.host.drag({150, 150}, {900, 700});
    EXPECT_EQ(widget->config().origin, QPointF(100, 100)) << "locked while widgets are arranged";
    EXPECT_EQ(panel->frame(), PanelGeometry::panelFrame(widget->widgetFrame()));
}

TEST_F(WidgetControllerTest, ADragFromAToolbarButtonDoesNotPressIt)
{
    desk.host.movePointer({150, 150});
    const QRectF strip = PanelGeometry::toolbarArea(widget->widgetFrame());
    const QPointF removeButton(70 + strip.right() - 20, 302 - strip.center().y());
    ASSERT_EQ(desk.host.panelAt(removeButton), panel);
    desk.host.drag(removeButton, removeButton + QPointF(50, 0));
    EXPECT_EQ(desk.manager.controllers().size(), 1);
    EXPECT_EQ(widget->config().origin, QPointF(150, 100));
}

TEST_F(WidgetControllerTest, HearsThePointerOnTheFaceAndOnTheToolbarWhileHovering)
{
    const QPointF aboveTheFace(110, 286);
    const QPointF inTheMargin(80, 150);
    EXPECT_FALSE(desk.host.panelAt(aboveTheFace));
    desk.host.movePointer({150, 150});
    EXPECT_TRUE(widget->isHovering());
    EXPECT_EQ(desk.host.panelAt(aboveTheFace), panel);
    EXPECT_FALSE(desk.host.panelAt(inTheMargin));
    desk.host.movePointer({900, 600});
    desk.clock.advance(250ms);
    EXPECT_FALSE(desk.host.panelAt(aboveTheFace));
    desk.host.click(aboveTheFace);
    EXPECT_EQ(clicks, 0);
    desk.host.click({150, 150}, Qt::RightButton);
    EXPECT_EQ(clicks, 0) << "only the left button opens";
}

TEST_F(WidgetControllerTest, PaintsTheToolbarOnlyWhileHovering)
{
    const QPoint inTheStrip(40, 16);
    EXPECT_EQ(panel->picture().pixelColor(inTheStrip).alpha(), 0);
    desk.host.movePointer({150, 150});
    const int alpha = panel->picture().pixelColor(inTheStrip).alpha();
    EXPECT_GT(alpha, 150);
    EXPECT_LT(alpha, 255);
    widget->change([](WidgetConfig& c) { c.fit = 5; }); // no room left beside the face
    const QPoint overTheFace(panel->picture().width() / 2 - 60, 32 + 4);
    EXPECT_EQ(panel->picture().pixelColor(overTheFace), QColor(20, 20, 22)) << "the title shines through";
}

TEST_F(WidgetControllerTest, IsNamedReadAndPressedWithoutThePointer)
{
    PanelDelegate& face = panel->delegate();
    const auto names = [&] {
        QStringList all;
        for (const PanelButton& button : face.buttons())
            all += button.name;
        return all.join(u'|').toStdString();
    };
    EXPECT_EQ(face.accessibleName(), title(cpu));
    EXPECT_TRUE(face.accessibleText().startsWith(u"CPU")) << qPrintable(face.accessibleText());
    EXPECT_EQ(names(), "Widget Settings…|Size: 100%|Pin Above Windows|Remove Widget");
    WidgetToolbar toolbar;
    toolbar.setArea(PanelGeometry::toolbarArea(widget->widgetFrame()));
    EXPECT_EQ(face.buttons().at(3).area, toolbar.buttonArea(WidgetToolbar::Button::remove));

    const WidgetController* asked = nullptr;
    QObject::connect(&desk.manager, &WidgetManager::settingsRequested, &desk.manager,
        [&](const WidgetController* which) { asked = which; });
    const int renamings = panel->renamings();
    for (const qsizetype button : {0, 1, 2, -1, 4})
        face.pressButton(button);
    EXPECT_EQ(asked, widget);
    EXPECT_EQ(widget->config().scale, WidgetScale::large);
    EXPECT_TRUE(widget->config().pinned);
    EXPECT_EQ(names(), "Widget Settings…|Size: 125%|Unpin|Remove Widget");
    EXPECT_EQ(panel->renamings(), renamings + 2);
    face.pressButton(3);
    face.pressButton(3); // it is asked again before it has gone
    EXPECT_TRUE(desk.panels().isEmpty());
}

TEST_F(WidgetControllerTest, DrawsBackdropBorderOpacityAndEditMark)
{
    const QPoint beside(30 - 3, 32 + 85); // between the face and the backdrop's edge
    const auto look = [&](const std::function<void(WidgetConfig&)>& edit) {
        widget->change(edit);
        return panel->picture();
    };
    const QImage plain = panel->picture();
    const QColor besidePlain = plain.pixelColor(beside);
    const QImage dim = look([](WidgetConfig& c) { c.backdrop = Backdrop::dim; });
    EXPECT_NEAR(dim.pixelColor(beside).alphaF(), 0.35 + besidePlain.alphaF() * 0.65, 0.02);
    const RoundedArea aroundTheFace = panel->outline().first();
    EXPECT_EQ(aroundTheFace.area, QRectF(24, 26, 182, 182));
    desk.host.movePointer(widget->widgetFrame().center());
    EXPECT_EQ(panel->outline(), (QList<RoundedArea>{aroundTheFace, {QRectF(30, 0, 196, 32), 16}}))
        << "a wide toolbar leaves nothing of the window beside the face";
    desk.host.movePointer({5, 5});
    desk.clock.advance(1s);
    look([](WidgetConfig& c) { c.backdrop = Backdrop::none; });

    const QPoint onTheEdge(30 + 85, 32);
    EXPECT_NE(look([](WidgetConfig& c) { c.border = true; }).pixelColor(onTheEdge), plain.pixelColor(onTheEdge));
    EXPECT_EQ(look([](WidgetConfig& c) { c.border = false; }), plain);

    const QPoint middle(30 + 85, 32 + 150);
    const QImage half = look([](WidgetConfig& c) { c.opacity = 0.5; });
    EXPECT_NEAR(half.pixelColor(middle).alphaF(), plain.pixelColor(middle).alphaF() / 2, 0.02);
    look([](WidgetConfig& c) { c.opacity = 1; });
    desk.manager.setEditing(true);
    EXPECT_NE(panel->picture(), plain);
    desk.manager.setEditing(false);
    EXPECT_EQ(panel->picture(), plain);
}

TEST_F(WidgetControllerTest, IsPointedOutForAMoment)
{
    const QPoint onTheRing(30 + 85, 32 - 7); // above the face
    const auto ring = [&] { return panel->picture().pixelColor(onTheRing) == widget->accent(); };
    const auto seen = [&](std::chrono::milliseconds after) {
        desk.clock.advance(after);
        return (panel->level() == WindowLevel::floating ? "above"s : "below"s) + (ring() ? " lit" : " dark");
    };
    const QList<RoundedArea> outline = panel->outline();
    EXPECT_EQ(seen(0ms), "below dark");
    widget->locate();
    EXPECT_EQ(seen(0ms), "above lit");
    EXPECT_TRUE(panel->outline().first().area.contains(QRectF(30 - 9, 32 - 9, 170 + 18, 170 + 18)))
        << "the ring is cut off where nothing composites";
    EXPECT_EQ(seen(400ms), "above dark");
    EXPECT_EQ(seen(400ms), "above lit");
    widget->locate(); // again, from the beginning
    EXPECT_EQ(seen(1200ms), "above dark");
    EXPECT_EQ(seen(399ms), "above dark");
    EXPECT_EQ(seen(1ms), "below dark");
    EXPECT_EQ(panel->outline(), outline);

    desk.appearance.setReducesMotion(true);
    widget->locate();
    for (int part = 0; part < 4; ++part, desk.clock.advance(399ms))
        EXPECT_EQ(seen(0ms), "above lit") << "it blinks";
    EXPECT_EQ(seen(4ms), "below dark");
    EXPECT_FALSE(desk.host.focused());

    widget->locate();
    desk.manager.remove(widget);
    EXPECT_TRUE(desk.panels().isEmpty());
    desk.clock.advance(2s);
}

TEST_F(WidgetControllerTest, AGhostIsSeenWhileItIsPointedOut)
{
    widget->setPinned(true);
    for (const bool hides : {false, true}) {
        widget->setFaded(true, hides);
        desk.clock.advance(1s);
        const double ghost = panel->opacity();
        widget->locate();
        desk.clock.advance(300ms);
        EXPECT_EQ(panel->opacity(), 1);
        EXPECT_FALSE(panel->isClickThrough());
        widget->setFaded(true, hides); // what is over it is looked at again
        desk.clock.advance(300ms);
        EXPECT_EQ(panel->opacity(), 1);
        desk.clock.advance(2s);
        EXPECT_EQ(panel->opacity(), ghost);
        EXPECT_TRUE(panel->isClickThrough());
        EXPECT_EQ(panel->level(), WindowLevel::floating) << "its pin";
    }
    widget->locate();
    widget->setFaded(false, false); // meanwhile nothing is over it any more
    desk.clock.advance(2s);
    EXPECT_EQ(panel->opacity(), 1);
    EXPECT_FALSE(panel->isClickThrough());
}

} // namespace
} // namespace ambrelle
