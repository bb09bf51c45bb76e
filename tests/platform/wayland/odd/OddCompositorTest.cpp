// SPDX-License-Identifier: MIT

#include "platform/wayland/odd/OddCompositor.h"
#include "platform/wayland/OutputPower.h"
#include "platform/wayland/WaylandWindowHost.h"
#include "support/PlainFace.h"
#include "support/WaitUntil.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ambrelle::test {
namespace {

std::unique_ptr<OddCompositor> compositor; // until the toolkit has left it

struct OddCompositorTest : testing::Test {
    ~OddCompositorTest() override { panel.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(host.isAvailable());
        int settled = 0;
        QObject context;
        QObject::connect(&host, &WindowHost::screensChanged, &context, [&settled] { ++settled; });
        compositor->run([this] { good = compositor->plug({.corner = {}, .mode = {800, 600}}); });
        ASSERT_TRUE(waitUntil([&] { return settled == 1 && host.screens().size() == 1; }));
        panel = host.makePanel(face);
        face.face = QRectF(20, 20, 200, 120);
        panel->setInputArea(face.face);
    }
    void TearDown() override
    {
        EXPECT_TRUE(isConnected());
        compositor->run([this] {
            compositor->configured = QSize(-1, -1);
            compositor->unplug(good);
        });
        EXPECT_TRUE(waitUntil([this] { return host.screens().isEmpty(); }));
    }

    bool isConnected() const
    {
        wl_display_roundtrip(host.connection()->display());
        return wl_display_get_error(host.connection()->display()) == 0;
    }
    /// The sizes of those on which pixels have been shown.
    static QList<QSize> shown()
    {
        QList<QSize> sizes;
        compositor->run([&] {
            for (const OddCompositor::Layer* layer : compositor->layers()) {
                if (layer->commits > 0)
                    sizes.append(layer->wanted);
            }
        });
        return sizes;
    }
    static bool areShown(const QList<QSize>& sizes)
    {
        return waitUntil([&] { return shown() == sizes; });
    }

    WaylandWindowHost host;
    PlainFace face;
    std::unique_ptr<PanelWindow> panel;
    OddCompositor::Output* good = nullptr;
    const QSize size{240, 160};
};

TEST_F(OddCompositorTest, AConfigureWithoutASizeLeavesTheSizeToThePanel)
{
    compositor->run([] { compositor->configured = QSize(0, 0); });
    panel->setFrame({100, 100, 240, 160});
    panel->show();
    EXPECT_TRUE(areShown({size}));
    panel->setFrame({100, 100, 300, 160});
    EXPECT_TRUE(areShown({{300, 160}}));
}

TEST_F(OddCompositorTest, AFrameWithoutASizeBreaksNothing)
{
    panel->setFrame({100, 100, 0, 0});
    panel->show();
    EXPECT_TRUE(isConnected());
    panel->setFrame({100, 100, 240, 160});
    EXPECT_TRUE(areShown({size}));
}

TEST_F(OddCompositorTest, APanelThatIsClosedComesAgain)
{
    panel->setFrame({100, 100, 240, 160});
    panel->show();
    ASSERT_TRUE(areShown({size}));
    compositor->run([] { compositor->close(compositor->layers().first()); });
    EXPECT_TRUE(waitUntil([] { return shown().isEmpty(); }));
    panel->update({{}, size});
    EXPECT_TRUE(areShown({size})) << "after a pause";
    compositor->run([] { compositor->close(compositor->layers().first()); });
    EXPECT_TRUE(waitUntil([] { return shown().isEmpty(); }));
    panel->hide();
    panel->show();
    EXPECT_TRUE(areShown({size})) << "at once when it is asked for";
}

TEST_F(OddCompositorTest, OutputsThatTellTooLittleAreNoPlaceForAPanel)
{
    const QList<OddCompositor::Output> odd{
        {.corner = {800, 0}},
        {.corner = {800, 0}, .mode = {400, 300}, .scale = 0},
        {.corner = {800, 0}, .mode = {400, 300}, .isDone = false},
    };
    for (const OddCompositor::Output& each : odd) {
        OddCompositor::Output* plugged = nullptr;
        compositor->run([&] { plugged = compositor->plug(each); });
        waitUntil([this] { return host.screens().size() > 1; }, 500);
        for (const double x : {100.0, 700.0, 900.0}) {
            panel->setFrame({x, 100, 240, 160});
            panel->show();
            EXPECT_TRUE(waitUntil([this] { return shown().contains(size); })) << x;
        }
        compositor->run([&] { compositor->unplug(plugged); });
        EXPECT_TRUE(waitUntil([this] { return host.screens().size() == 1; }));
        EXPECT_TRUE(isConnected()) << each.scale;
        panel->hide();
    }
}

TEST_F(OddCompositorTest, APanelOutlivesItsOutputs)
{
    panel->setFrame({700, 100, 240, 160});
    panel->show();
    ASSERT_TRUE(areShown({size}));
    OddCompositor::Output* right = nullptr;
    compositor->run([&] { right = compositor->plug({.corner = {800, 0}, .mode = {800, 600}}); });
    EXPECT_TRUE(areShown({size, size})) << "on both";
    compositor->run([&] { compositor->unplug(good); });
    panel->hide(); // before anybody has heard of it
    panel->setFrame({100, 100, 240, 160});
    panel->show();
    EXPECT_TRUE(waitUntil([this] { return host.screens().size() == 1; }));
    EXPECT_TRUE(waitUntil([this] { return shown().contains(size); }));
    compositor->run([&] { compositor->unplug(right); });
    EXPECT_TRUE(waitUntil([this] { return host.screens().isEmpty(); }));
    panel->hide();
    panel->show();
    EXPECT_TRUE(isConnected());
    compositor->run([this] { good = compositor->plug({.corner = {}, .mode = {800, 600}}); });
    EXPECT_TRUE(areShown({size}));
}

TEST_F(OddCompositorTest, NobodySeesADesktopOnDarkOutputs)
{
    OutputPower power(host.connection());
    ASSERT_TRUE(power.isAvailable()) << power.whyNot().toStdString();
    QList<bool> told;
    QObject::connect(&power, &SessionVisibility::changed, &power, [&] { told.append(power.isVisible()); });
    ASSERT_TRUE(isConnected());
    EXPECT_TRUE(power.isVisible());
    compositor->run([] { compositor->setPower(false); });
    EXPECT_TRUE(waitUntil([&] { return !power.isVisible(); }));
    OddCompositor::Output* lit = nullptr;
    compositor->run([&] { lit = compositor->plug({.corner = {800, 0}, .mode = {800, 600}}); });
    EXPECT_TRUE(waitUntil([&] { return power.isVisible(); })) << "on that one";
    compositor->run([&] { compositor->unplug(lit); });
    EXPECT_TRUE(waitUntil([&] { return !power.isVisible(); }));
    compositor->run([] { compositor->setPower(true); });
    EXPECT_TRUE(waitUntil([&] { return power.isVisible(); }));
    EXPECT_EQ(told, QList<bool>({false, true, false, true}));
    const OutputPower none(nullptr);
    EXPECT_TRUE(none.isVisible());
    EXPECT_FALSE(none.isAvailable());
    EXPECT_FALSE(none.whyNot().isEmpty());
}

TEST_F(OddCompositorTest, WhatIsWithdrawnServesThoseWhoHaveIt)
{
    compositor->run([] { compositor->withdrawLayerShell(); });
    panel->setFrame({100, 100, 240, 160});
    panel->show();
    EXPECT_TRUE(areShown({size}));
    EXPECT_FALSE(WaylandWindowHost().isAvailable()) << "nobody else";
    compositor->run([] { compositor->offerLayerShell(); });
    EXPECT_TRUE(WaylandWindowHost().isAvailable());
}

} // namespace
} // namespace ambrelle::test

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "wayland");
    ambrelle::test::compositor = std::make_unique<ambrelle::test::OddCompositor>();
    int status = 0;
    {
        const QGuiApplication application(argc, argv);
        status = RUN_ALL_TESTS();
    }
    ambrelle::test::compositor.reset();
    return status;
}
