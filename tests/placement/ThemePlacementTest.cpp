// SPDX-License-Identifier: MIT

#include "placement/ThemePlacement.h"
#include "placement/ScreenNames.h"
#include "placement/ScreenPlacement.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

const ScreenInfo mainScreen{
    .id = u"one"_s, .connector = u"DP-1"_s, .frame = {0, 0, 1440, 900}, .visibleFrame = {60, 0, 1380, 860}};
const ScreenInfo otherScreen{
    .id = u"two"_s, .connector = u"DP-2"_s, .frame = {1440, -200, 1000, 700}, .visibleFrame = {1440, -200, 1000, 700}};

QPointF placedOn(const ScreenInfo& screen, const SavedWidget& widget)
{
    const QList<StoredWidget> placed = ThemePlacement::placed({.widgets = {widget}}, screen);
    return placed.first().config.origin;
}

TEST(ThemePlacement, TheCornerIsAPartOfTheWorkArea)
{
    struct Case {
        const char* what;
        QPointF origin;
        double fx, fy;
        QPointF onOther; ///< 1000 x 700 points
    };
    for (const Case& c : {
             Case{"in the middle", {750, 430}, 0.5, 0.5, {1940, 150}},
             Case{"in the corner", {60, 0}, 0, 0, {1440, -200}},
             Case{"at the edge, where a smaller screen ends earlier", {1270, 690}, 1210 / 1380.0, 690 / 860.0,
                 {1440 + 1000 - 170, -200 + 700 - 170}},
             Case{"partly off the screen", {-40, 300}, -100 / 1380.0, 300 / 860.0, {1440, -200 + 300 * 700 / 860.0}},
         }) {
        WidgetConfig config(WidgetKind::cpu, Skin::glass, WidgetScale::medium, c.origin);
        config.display = u"gone"_s;
        const SavedWidget saved = ThemePlacement::saved(config, mainScreen);
        EXPECT_DOUBLE_EQ(saved.fx, c.fx) << c.what;
        EXPECT_DOUBLE_EQ(saved.fy, c.fy) << c.what;
        EXPECT_EQ(placedOn(mainScreen, saved), c.origin) << c.what << ": not where it was";
        const QPointF there = placedOn(otherScreen, saved);
        EXPECT_NEAR(there.x(), c.onOther.x(), 1e-6) << c.what;
        EXPECT_NEAR(there.y(), c.onOther.y(), 1e-6) << c.what;
    }
}

TEST(ThemePlacement, AWidgetIsAtHomeOnTheScreenItIsPlacedOn)
{
    // Most of it lies on the neighbour.
    WidgetConfig config(WidgetKind::cpu, Skin::glass, WidgetScale::medium, {1400, 300});
    config.display = u"gone"_s;
    QList<StoredWidget> placed =
        ThemePlacement::placed({.widgets = {ThemePlacement::saved(config, mainScreen)}}, mainScreen);
    ScreenPlacement::arrange(placed, {otherScreen, mainScreen});
    EXPECT_EQ(placed.first().config.origin, QPointF(1400, 300));
    EXPECT_EQ(placed.first().config.display, mainScreen.id);
}

TEST(StoredWidgets, NoTwoShareAnIdentifier)
{
    const WidgetConfig one(WidgetKind::cpu, Skin::glass);
    const WidgetConfig other(WidgetKind::cpu, Skin::glass);
    WidgetConfig nobody(WidgetKind::cpu, Skin::glass);
    nobody.id = QUuid();
    QList<StoredWidget> widgets{{one}, {other}, {other}, {nobody}, {nobody}};
    makeDistinct(widgets, {one.id});
    QSet<QUuid> ids{one.id, QUuid()};
    for (const StoredWidget& widget : widgets)
        ids.insert(widget.config.id);
    EXPECT_EQ(ids.size(), 2 + widgets.size());
    EXPECT_EQ(widgets[1].config.id, other.id) << "it was free";
}

TEST(ScreenNames, AreTheModelOrTheConnector)
{
    const auto screen = [](const QString& connector, const QString& maker, const QString& model) {
        ScreenInfo info;
        info.id = maker + model;
        info.connector = connector;
        info.maker = maker;
        info.model = model;
        return info;
    };
    EXPECT_EQ(screenNames({screen(u"eDP-1"_s, u"AUO"_s, u"B140"_s), screen(u"DP-3"_s, u"Dell Inc."_s, u"DELL U2720Q"_s),
                  screen(u"HDMI-1"_s, u"Goldstar Company Ltd"_s, u"LG HDR 4K"_s), screen(u"VGA-1"_s, u"Acme"_s, {})}),
        (QStringList{u"Built-in Display"_s, u"U2720Q"_s, u"LG HDR 4K"_s, u"VGA-1"_s}));
    EXPECT_EQ(screenNames({screen(u"DP-1"_s, {}, u"U2720Q"_s), screen(u"DP-2"_s, u"DELL"_s, u"Dell U2720Q"_s),
                  screen(u"LVDS1"_s, {}, {}), screen(u"DSI-1"_s, {}, {}), screen(u"DELL"_s, u"DELL"_s, u"DELL"_s)}),
        (QStringList{u"U2720Q (DP-1)"_s, u"U2720Q (DP-2)"_s, u"Built-in Display (LVDS1)"_s,
            u"Built-in Display (DSI-1)"_s, u"DELL"_s}));
}

} // namespace
} // namespace ambrelle
