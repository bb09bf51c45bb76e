// SPDX-License-Identifier: MIT

#include "platform/wayland/OnCompositor.h"

namespace ambrelle::test {
namespace {

const QColor fineColour(0xE0, 0x20, 0x80);

/// Has a stripe half a point wide at its left edge and in its middle.
struct FineFace : FollowingFace {
    void paint(QPainter& painter, const QRectF& area) override
    {
        FollowingFace::paint(painter, area);
        for (const double x : stripes)
            painter.fillRect(QRectF(x, 0, 0.5, 1000), fineColour);
    }
    QList<double> stripes;
};

/// The first output has a scale of 1, the second, right of it and less high, one of 2.
struct WaylandOutputsTest : OnCompositor {
    ~WaylandOutputsTest() override { panel.reset(); }

    void SetUp() override
    {
        OnCompositor::SetUp();
        ASSERT_TRUE(waitUntil([this] { return host.screens().size() == 2; }));
        ASSERT_EQ(host.screens().last().frame, QRectF(1280, 200, 960, 600));
        ASSERT_EQ(host.screens().last().pixelRatio, 2);
        panel = make(dragged, mostlyLeft);
        dragged.panel = panel.get();
        ground = seen(left);
        ASSERT_NE(ground, theFace);
    }

    bool areSeen(const QColor& one, const QColor& other) const { return isSeen(left, one) && isSeen(right, other); }

    /// Pulls the panel from one point to another, and lets go of it there.
    void drag(
        const QPointF& from, const QPointF& to, const std::function<void()>& before = [] {})
    {
        dragged.start = panel->frame();
        ASSERT_TRUE(isSeen(from + beside, theFace)) << "there is something to press";
        point(from);
        input->press();
        ASSERT_TRUE(waitUntil([&] { return !dragged.pressed.isEmpty() && dragged.pressed.last().global == from; }));
        constexpr int steps = 20;
        for (int step = 1; step <= steps; ++step)
            point(from + (to - from) * step / steps);
        EXPECT_TRUE(waitUntil([&] { return panel->frame() == dragged.start.translated(to - from); }));
        before();
        const qsizetype releases = dragged.released.size();
        input->release();
        EXPECT_TRUE(waitUntil([&] { return dragged.released.size() > releases; }));
    }

    const QRectF mostlyLeft{1120, 400, 240, 160};
    const QRectF mostlyRight{1200, 400, 240, 160};
    const QPointF left{1250, 480}; ///< of both, on the first output
    const QPointF right{1310, 480};
    const QPointF beside{0, -30}; ///< of the pointer, which covers what lies below it
    FineFace dragged;
    std::unique_ptr<PanelWindow> panel;
    QColor ground;
};

TEST_F(WaylandOutputsTest, APanelAcrossAnEdgeShowsOnBothSides)
{
    for (const QRectF& frame : {mostlyLeft, mostlyRight, mostlyLeft}) {
        panel->setFrame(frame);
        panel->show();
        EXPECT_TRUE(areSeen(theFace, theFace));
        dragged.colour = Qt::yellow;
        panel->update({{}, frame.size()});
        EXPECT_TRUE(areSeen(Qt::yellow, Qt::yellow));
        dragged.colour = faceColour;
        panel->update({{}, frame.size()});
        panel->setOpacity(0);
        EXPECT_TRUE(areSeen(ground, ground));
        panel->setOpacity(1);
        EXPECT_TRUE(areSeen(theFace, theFace));
        panel->setFrame(frame.translated(-400, 0));
        EXPECT_TRUE(areSeen(ground, ground));
        panel->setFrame(frame.translated(70, 0));
        EXPECT_TRUE(isSeen(right, theFace));
        panel->hide();
        EXPECT_TRUE(areSeen(ground, ground));
    }
}

TEST_F(WaylandOutputsTest, EachSideIsAsFineAsItsOutput)
{
    for (const QRectF& frame : {mostlyLeft, mostlyRight, mostlyLeft}) {
        dragged.stripes = {left.x() - frame.x(), right.x() - frame.x()};
        panel->setFrame(frame);
        panel->show();
        ASSERT_TRUE(isSeen(right + QPointF(4, 0), theFace));
        EXPECT_TRUE(waitUntil([&] { return seen(right, 2) == fineColour; })) << frame.x();
        EXPECT_EQ(seen(right + QPointF(0.5, 0), 2), theFace);
        const QColor onCoarse = seen(left);
        EXPECT_TRUE(onCoarse != theFace && onCoarse != fineColour) << "half of a pixel";
        // Wholly on one it has the other's fineness no more.
        panel->setFrame(frame.translated(300, 0));
        const QPointF moved = right + QPointF(300, 0);
        EXPECT_TRUE(waitUntil([&] { return seen(moved, 2) == fineColour; })) << frame.x();
    }
}

TEST_F(WaylandOutputsTest, BothSidesHearThePointer)
{
    for (const QRectF& frame : {mostlyLeft, mostlyRight}) {
        panel->setFrame(frame);
        panel->show();
        ASSERT_TRUE(areSeen(theFace, theFace));
        for (const QPointF& place : {left, right}) {
            dragged.pressed.clear();
            dragged.released.clear();
            point(place);
            ASSERT_TRUE(waitUntil([this] { return dragged.inside; }));
            input->press();
            input->release();
            ASSERT_TRUE(waitUntil([this] { return dragged.released.size() == 1; }));
            EXPECT_EQ(dragged.pressed.first().global, place);
            EXPECT_EQ(dragged.pressed.first().local, QPointF(place.x() - frame.x(), frame.bottom() - place.y()));
        }
        panel->setClickThrough(true);
        wl_display_roundtrip(host.connection()->display());
        point({900, 300});
        EXPECT_TRUE(waitUntil([this] { return !dragged.inside; }));
        point(right);
        EXPECT_FALSE(waitUntil([this] { return dragged.inside; }, 300));
        panel->setClickThrough(false);
        point({900, 300});
        panel->hide();
    }
}

TEST_F(WaylandOutputsTest, EitherSideMayBeDragged)
{
    const QPointF upwards(0, 100);
    for (const QRectF& frame : {mostlyLeft, mostlyRight}) {
        for (const QPointF& handle : {left, right}) {
            panel->setFrame(frame);
            panel->show();
            ASSERT_TRUE(areSeen(theFace, theFace));
            const QPointF way(-20, 100);
            drag(handle, handle + way, [&] {
                EXPECT_TRUE(isSeen(left + way + beside, theFace)) << "while it is held";
                EXPECT_TRUE(isSeen(right + way + beside, theFace));
                EXPECT_TRUE(isSeen(left - QPointF(0, 40), ground));
                EXPECT_TRUE(isSeen(right - QPointF(0, 40), ground));
            });
            EXPECT_TRUE(isSeen(left + way + beside, theFace));
            EXPECT_TRUE(isSeen(right + way + beside, theFace));
            // And wholly to one output, from which it comes back.
            drag(handle + way, {700, 300}, [&] { EXPECT_TRUE(isSeen(QPointF(700, 300) + beside, theFace)); });
            EXPECT_TRUE(areSeen(ground, ground));
            drag({700, 300}, {1700, 500}, [&] { EXPECT_TRUE(isSeen(QPointF(1700, 500) + beside, theFace)); });
            point({900, 100});
            EXPECT_TRUE(isSeen({1700, 500}, theFace));
            panel->hide();
        }
    }
}

TEST_F(WaylandOutputsTest, AChangeOfOutputMayMeetAPaint)
{
    panel->show();
    ASSERT_TRUE(areSeen(theFace, theFace));
    for (int step = 0; step < 60; ++step) {
        panel->setFrame(step % 2 == 0 ? mostlyRight.translated(400, 0) : mostlyLeft.translated(-400, 0));
        panel->update({{}, mostlyLeft.size()});
        QCoreApplication::processEvents();
        panel->update({{}, mostlyLeft.size()});
        QCoreApplication::processEvents();
    }
    panel->setFrame(mostlyLeft);
    EXPECT_TRUE(areSeen(theFace, theFace));
}

TEST_F(WaylandOutputsTest, TellsWhereAButtonIsLetGoThatWasPressedInANormalWindow)
{
    NormalWindow window(Qt::blue);
    ASSERT_TRUE(isSeen({300, 300}, Qt::blue));
    std::optional<QPointF> found;
    for (const QPointF& place : {QPointF(1500, 700), QPointF(40, 30), QPointF(600, 420)}) {
        wl_display_roundtrip(host.connection()->display()); // nothing is left of the one before
        point({300, 301});
        point({300, 300});
        const int presses = window.presses;
        input->press();
        ASSERT_TRUE(waitUntil([&] { return window.presses > presses; }));
        const std::unique_ptr<DropSpotter> spotter = host.makeDropSpotter();
        ASSERT_TRUE(spotter);
        point({800, 500});
        point(place);
        const int releases = window.releases;
        found.reset();
        input->release();
        ASSERT_TRUE(waitUntil([&] { return window.releases > releases; }));
        spotter->released([&](const std::optional<QPointF>& told) { found = told; });
        EXPECT_TRUE(waitUntil([&] { return found.has_value(); }));
        EXPECT_EQ(found, place);
    }
}

/// Last: the output does not come again.
using WaylandUnplugTest = WaylandOutputsTest;

TEST_F(WaylandUnplugTest, AnOutputMayGoInTheMiddleOfADrag)
{
    panel->show();
    ASSERT_TRUE(areSeen(theFace, theFace));
    int settled = 0;
    QObject context;
    QObject::connect(&host, &WindowHost::screensChanged, &context, [&] { ++settled; });
    dragged.start = panel->frame();
    point(right);
    input->press();
    point(right + QPointF(300, 0));
    ASSERT_TRUE(waitUntil([this] { return panel->frame() == mostlyLeft.translated(300, 0); }));
    QProcess::execute(u"swaymsg"_s,
        {u"-q"_s, u"-s"_s, qEnvironmentVariable("AMBRELLE_TEST_OUTER"), u"[title=\"^wlroots - WL-2$\"] kill"_s});
    ASSERT_TRUE(waitUntil([&] { return settled >= 1 && host.screens().size() == 1; }));
    input->release();
    panel->setFrame({500, 300, 240, 160});
    EXPECT_TRUE(isSeen({620, 380}, theFace));
    dragged.start = panel->frame();
    drag({620, 380}, {400, 600});
    EXPECT_TRUE(isSeen({390, 610}, theFace));
}

} // namespace
} // namespace ambrelle::test
