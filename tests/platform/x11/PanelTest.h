// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/Onlooker.h"
#include "platform/x11/X11WindowHost.h"
#include "support/PlainFace.h"

#include <gtest/gtest.h>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

inline constexpr QRgb windowColour = 0xFF2060C0;
/// A panel on the real screen, not shown yet.
class PanelTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host.isAvailable()) << host.whyNot().toStdString();
        ASSERT_FALSE(host.screens().isEmpty());
        ratio = host.screens().first().pixelRatio;
        ASSERT_TRUE(runTool(u"xdotool"_s, {"mousemove", "1", "1"}));
        panel = make(face, {200, 200, 240, 160});
    }

    std::unique_ptr<X11Panel> make(PlainFace& plain, const QRectF& frame)
    {
        plain.face = QRectF({0, 0}, frame.size()).adjusted(margin, margin, -margin, -margin);
        std::unique_ptr<X11Panel> made(static_cast<X11Panel*>(host.makePanel(plain).release()));
        made->setFrame(frame);
        made->setInputArea(plain.face);
        made->setOutline({{plain.face, 16}});
        return made;
    }

    void showPanel()
    {
        panel->show();
        ASSERT_TRUE(waitUntil([&] {
            return onlooker.isViewable(panel->window()) && !face.painted.isEmpty()
                && onlooker.isManaged(panel->window());
        }));
    }

    /// A point of a panel, from its upper left corner, as a pixel of the screen.
    QPoint pixelOf(const X11Panel& which, const QPointF& local) const
    {
        return onlooker.geometry(which.window()).topLeft() + (local * ratio).toPoint();
    }
    QPoint facePixel() const { return pixelOf(*panel, face.face.center()); }
    QPoint marginPixel() const { return pixelOf(*panel, {8, 8}); }
    bool shows(const QPoint& place, QRgb colour) const
    {
        return waitUntil([&] { return onlooker.pixel(place) == (colour | 0xFF000000); });
    }
    bool movePointer(const QPoint& place) const
    {
        return runTool(u"xdotool"_s, {"mousemove", QString::number(place.x()), QString::number(place.y())});
    }
    bool click(const QPoint& place) const { return movePointer(place) && runTool(u"xdotool"_s, {"click", "1"}); }
    /// Clicks again until it is heard: as long as the window manager has not cut its frame to the input area, that
    /// swallows clicks.
    template <typename Condition> bool clickUntil(const QPoint& place, const Condition& isHeard) const
    {
        for (int attempt = 0; attempt < 20 && !isHeard(); ++attempt) {
            EXPECT_TRUE(click(place));
            waitUntil(isHeard, 3000);
        }
        return isHeard();
    }
    /// An ordinary, focused window of another application that covers the panel.
    xcb_window_t coverPanel()
    {
        const QRect place = onlooker.geometry(panel->window()).adjusted(-30, -30, 30, 30);
        const xcb_window_t window = onlooker.openWindow(place, windowColour);
        EXPECT_TRUE(runTool(u"xdotool"_s, {"windowactivate", QString::number(window)}));
        EXPECT_TRUE(waitUntil([&] { return onlooker.activeWindow() == window; }));
        return window;
    }

    Onlooker onlooker;
    X11WindowHost host;
    PlainFace face;
    std::unique_ptr<X11Panel> panel;
    double ratio = 1;
};

} // namespace ambrelle::test
