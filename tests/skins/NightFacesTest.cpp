// SPDX-License-Identifier: MIT

#include "skins/SkinRegistry.h"
#include "skins/Skins.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

namespace {

struct NightMaker {
    Skin skin;
    std::shared_ptr<const FaceRenderer> (*make)(const std::optional<QColor>& accent);
};

constexpr NightMaker nightFamily[] = {{Skin::obsidian, obsidianSkin}, {Skin::midnight, midnightSkin},
    {Skin::pulse, pulseSkin}, {Skin::prism, prismSkin}, {Skin::carbon, carbonSkin}, {Skin::velvet, velvetSkin}};

/// A face as it stands at a moment, and where it moves.
struct NightFrame {
    QImage image;
    QRegion moving;
};

NightFrame nightFrame(Skin skin, WidgetKind kind, FaceState state, double time)
{
    const FaceView face = view(skin, kind);
    NightFrame frame{QImage(face.size().toSize(), QImage::Format_RGB32), {}};
    frame.image.fill(Qt::black);
    QPainter painter(&frame.image);
    for (const Canvas::MovingArea& part :
        face.draw(painter, stateReading(kind, state, QLocale::c()), {.time = time}).moving)
        frame.moving += part.area.toAlignedRect();
    return frame;
}

TEST(PrismSkin, AGlintCrossesThePlateAndLeavesNothingBehind)
{
    constexpr double start = 16 * 10 - 1.37; // of a crossing of the clock
    const auto clock = [](double time) {
        return nightFrame(Skin::prism, WidgetKind::clock, FaceState::sample, time).image;
    };
    const QImage printed = clock(0);
    EXPECT_EQ(printed, clock(start + 5));
    EXPECT_NE(printed, clock(start + 0.4));
    EXPECT_NE(clock(start + 0.4), clock(start + 0.8));
}

TEST(CarbonSkin, ItsLampsChaseBeyondTheRedLineOnly)
{
    const auto cpu = [](FaceState state, double time) {
        return nightFrame(Skin::carbon, WidgetKind::cpu, state, time);
    };
    EXPECT_TRUE(cpu(FaceState::sample, 100).moving.isEmpty());
    const NightFrame printed = cpu(FaceState::extreme, 0);
    const QRect lamps = printed.moving.boundingRect();
    EXPECT_LT(lamps.height(), 20);
    QList<QImage> seen;
    for (int step = 0; step < 6; ++step) {
        const QImage image = cpu(FaceState::extreme, 100.05 + step * 0.1).image.copy(lamps);
        EXPECT_FALSE(seen.contains(image)) << step; // each lamp dark in turn, and all lit
        seen.append(image);
    }
    EXPECT_TRUE(seen.contains(printed.image.copy(lamps)));
}

TEST(NightFaces, AnAlmostEmptyBatteryShowsItsLastBit)
{
    const Box box(10, 8, 140, 44);
    for (const auto& [skin, make] : nightFamily) {
        const auto renderer = make({});
        const auto pictureAt = [&](double level) {
            QImage image(160, 60, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            Canvas canvas(painter, {});
            renderer->charge(canvas, box, {.level = level, .low = true});
            return image;
        };
        EXPECT_NE(pictureAt(0), pictureAt(0.01)) << rawValue(skin).data();
    }
}

TEST(NightFaces, PartsOfAWholeDifferInEveryAccent)
{
    constexpr double least = 50; // of 441, the way from black to white
    const auto apart = [](const QBrush& one, const QBrush& other) {
        const QColor a = one.color();
        const QColor b = other.color();
        return std::hypot(a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue());
    };
    for (const auto& [skin, make] : nightFamily) {
        for (const AccentChoice& choice : accentChoices(skin)) {
            const QList<QBrush> fills = make(choice.color)->partFills();
            ASSERT_EQ(fills.size(), 3);
            for (const auto& [one, other] : {std::pair(0, 1), {0, 2}, {1, 2}})
                EXPECT_GT(apart(fills[one], fills[other]), least)
                    << rawValue(skin).data() << ' ' << qPrintable(choice.name);
        }
    }
}

} // namespace

} // namespace ambrelle
