// SPDX-License-Identifier: MIT

#include "skins/abyss/AbyssGauges.h"
#include "skins/abyss/AbyssPortholes.h"
#include "skins/DrawnFace.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

DrawnFace abyssFace(WidgetKind kind, FaceState state, const std::optional<QColor>& accent = {})
{
    return drawnFace({abyssSkin(accent), view(Skin::abyss, kind).face(), {}}, state);
}

} // namespace

TEST(AbyssSkin, OnlyTheSonarNeedlesAndTheWaterMove)
{
    using enum WidgetKind;
    const QMap<WidgetKind, double> rates{{network, 20}, {cpu, 12}, {disk, 12}, {focus, 12}, {battery, 12}};
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const QList<Canvas::MovingArea> moving = abyssFace(kind, FaceState::sample).moving;
        EXPECT_EQ(moving.isEmpty(), !rates.contains(kind)) << rawValue(kind).data();
        for (const Canvas::MovingArea& area : moving)
            EXPECT_EQ(area.motion, Motion::steady(rates[kind])) << rawValue(kind).data();
    }
    for (const WidgetKind kind : {cpu, disk, focus})
        EXPECT_TRUE(abyssFace(kind, FaceState::quiet).moving.isEmpty())
            << rawValue(kind).data() << " trembles on its pin";
}

TEST(AbyssSkin, WaterRisesWithTheChargeAndStaysInItsTube)
{
    const abyss::DepthTube tube{.place = Box(10, 20, 26, 110), .water = Qt::cyan};
    double before = tube.place.bottom();
    for (const double level : {0.0, 0.04, 0.5, 0.96, 1.0}) {
        QImage image(60, 150, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        Canvas canvas(painter, {});
        tube.draw(canvas, level);
        EXPECT_LT(tube.surface(level), before) << level;
        before = tube.surface(level);
        EXPECT_EQ(canvas.movingAreas().isEmpty(), level == 0) << level;
        for (const Canvas::MovingArea& area : canvas.movingAreas()) {
            EXPECT_TRUE(tube.place.contains(area.area)) << level;
            EXPECT_TRUE(area.area.contains(QPointF(tube.place.center().x(), before))) << level;
        }
        const auto brightness = [&](double y) {
            return qGray(image.pixel(static_cast<int>(tube.place.center().x()), static_cast<int>(y)));
        };
        if (level == 0.5) {
            EXPECT_GT(brightness(before + 4), brightness(before - 8) + 50);
        }
    }
}

TEST(AbyssSkin, RingsRunFromTheHydrophoneWhileItPlays)
{
    const auto heard = [](bool listening) {
        QImage image(160, 160, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        Canvas canvas(painter, {});
        const Box inside = abyss::hydrophone(canvas, {0, 0, 160, 160}, listening);
        EXPECT_TRUE(Box(30, 30, 100, 100).contains(inside));
        int lit = 0;
        for (int x = 0; x < 20; ++x)
            lit += qGray(image.pixel(x, 80)) > 15 ? 1 : 0;
        return lit;
    };
    EXPECT_GE(heard(true), 3);
    EXPECT_EQ(heard(false), 0);
}

TEST(AbyssSkin, NeedlesFollowTheAccentAndBrassDoesNot)
{
    using enum WidgetKind;
    const QColor coral(255, 115, 102);
    const auto follows = [&](WidgetKind kind) {
        return abyssFace(kind, FaceState::sample).image != abyssFace(kind, FaceState::sample, coral).image;
    };
    for (const WidgetKind kind : {cpu, disk, focus, weather, nowPlaying, calendar})
        EXPECT_TRUE(follows(kind)) << rawValue(kind).data();
    for (const WidgetKind kind : {processes, events, network, battery, photo, quote})
        EXPECT_FALSE(follows(kind)) << rawValue(kind).data();
}

} // namespace ambrelle
