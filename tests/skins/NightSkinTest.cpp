// SPDX-License-Identifier: MIT

#include "skins/night/NightSkin.h"

#include "skins/DrawnFace.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ambrelle {

namespace {

struct NightMember {
    Skin skin;
    std::shared_ptr<const FaceRenderer> (*make)(const std::optional<QColor>& accent);
};

constexpr NightMember nightSkins[] = {{Skin::obsidian, obsidianSkin}, {Skin::midnight, midnightSkin},
    {Skin::pulse, pulseSkin}, {Skin::prism, prismSkin}, {Skin::carbon, carbonSkin}, {Skin::velvet, velvetSkin}};

/// Where there is strong ink in what `draw` paints about the middle.
QRect strongInkOf(const std::function<void(Canvas&)>& draw)
{
    constexpr int strong = 128; // of 255; light around marks is fainter
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Canvas canvas(painter, {});
    draw(canvas);
    QRect ink = QRect(image.rect().center(), QSize(1, 1));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= strong)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

TEST(NightSkin, LevelsAndPartsFillTheirBoxAndKeepToIt)
{
    const Box box(30, 20, 140, 20);
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [skin, make] : nightSkins) {
        const auto renderer = make({});
        for (const double fraction : {0.0, 0.001, 0.5, 1.0, 7.0, nothing}) {
            const QRect ink = strongInkOf([&](Canvas& canvas) { renderer->level(canvas, box, fraction, Qt::green); });
            EXPECT_TRUE(box.toRect().contains(ink)) << rawValue(skin).data() << fraction;
        }
        for (const QList<double>& shares : {QList<double>{0, 0, 0}, {0.5, 0.3, 0.2}, {0.9, 0.6, 0.4}}) {
            QList<Share> parts;
            for (const double share : shares)
                parts.append(Share{.fraction = share});
            const QRect ink = strongInkOf([&](Canvas& canvas) { renderer->parts(canvas, box, parts); });
            EXPECT_TRUE(box.toRect().contains(ink)) << rawValue(skin).data();
        }
    }
}

struct Moment {
    Skin skin;
    WidgetKind kind;
    double moved;
    std::optional<double> resting{}; ///< a moment between bursts
};

TEST(NightSkin, WhatMovesKeepsToItsAreasAndRestsAsItIsPrinted)
{
    constexpr double edge = 14 * 10 - 1.37; // the start of a turn of the clock's edge
    constexpr double beat = 2.4 * 50 - 1.37; // and of a beat of the heart
    constexpr Moment moments[] = {{Skin::obsidian, WidgetKind::clock, edge + 0.8, edge + 5},
        {Skin::midnight, WidgetKind::cpu, 1.5}, {Skin::midnight, WidgetKind::network, 1.5},
        {Skin::midnight, WidgetKind::nowPlaying, 0.7}, {Skin::pulse, WidgetKind::cpu, beat + 0.25, beat + 1}};
    for (const auto& [skin, kind, time, resting] : moments) {
        const auto at = [face = view(skin, kind)](double when) { return drawnFace(face, FaceState::sample, when); };
        const QImage printed = at(0).image;
        if (resting) {
            EXPECT_EQ(printed, at(*resting).image) << rawValue(skin).data();
        }
        const DrawnFace moved = at(time);
        const QRegion moving = moved.movingRegion();
        EXPECT_NE(printed, moved.image) << rawValue(skin).data();
        for (int y = 0; y < printed.height(); ++y) {
            for (int x = 0; x < printed.width(); ++x) {
                if (!moving.contains(QPoint(x, y))) {
                    ASSERT_EQ(printed.pixel(x, y), moved.image.pixel(x, y)) << rawValue(kind).data() << x << ' ' << y;
                }
            }
        }
    }
}

bool shows(WidgetKind kind, const Reading& reading, const QString& text)
{
    return std::ranges::any_of(drawnFace(view(Skin::midnight, kind), reading).record,
        [&](const CanvasMark& mark) { return mark.text == text; });
}

TEST(MidnightSkin, AChipTellsTheTrendAndGivesWayToTheTitle)
{
    using namespace Qt::StringLiterals;
    CpuReading cpu{.percent = 70, .history = {0, 0, 0.3, 0.9, 0.7}};
    EXPECT_TRUE(shows(WidgetKind::cpu, cpu, u"arrow.up"_s) && shows(WidgetKind::cpu, cpu, u"40%"_s));
    cpu.history = {0.9, 0.7};
    EXPECT_TRUE(shows(WidgetKind::cpu, cpu, u"arrow.down"_s));
    cpu.history = {0, 0, 0};
    EXPECT_TRUE(shows(WidgetKind::cpu, cpu, u"0%"_s));

    CalendarReading month{.month = u"May"_s, .year = u"2026"_s};
    EXPECT_TRUE(shows(WidgetKind::calendar, month, month.year));
    month.month = u"A month of a very long name"_s;
    EXPECT_FALSE(shows(WidgetKind::calendar, month, month.year));

    const BatteryReading battery{.state = u"On battery power of the dock"_s, .remaining = u"99:59 until it is full"_s};
    EXPECT_TRUE(shows(WidgetKind::battery, battery, battery.remaining));
}

/// How many pixels are rather of the colour than of black.
int pixelsNear(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel(image.pixel(x, y));
            count += std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green())
                    + std::abs(pixel.blue() - colour.blue())
                < 24;
        }
    }
    return count;
}

TEST(PulseSkin, RingsOfTheClockCloseWhenTheyComeRound)
{
    const NightLook look = NightLook::of(Skin::pulse);
    const auto lit = [&](int hour, int minute, int second, const QColor& colour) {
        const ClockReading reading{.second = second, .hour24 = hour, .minute = minute};
        return pixelsNear(drawnFace(view(Skin::pulse, WidgetKind::clock), reading).image, colour);
    };
    EXPECT_GT(lit(0, 0, 0, look.accent), 3 * lit(3, 0, 0, look.accent));
    EXPECT_GT(lit(0, 0, 0, look.accent2), 3 * lit(0, 15, 0, look.accent2));
    EXPECT_GT(lit(0, 0, 0, look.accent3), 3 * lit(0, 0, 15, look.accent3));
}

TEST(PrismSkin, AGlintCrossesThePlateAndLeavesNothingBehind)
{
    constexpr double start = 16 * 10 - 1.37; // of a crossing of the clock
    const auto clock = [](double time) {
        return drawnFace(view(Skin::prism, WidgetKind::clock), FaceState::sample, time).image;
    };
    const QImage printed = clock(0);
    EXPECT_EQ(printed, clock(start + 5));
    EXPECT_NE(printed, clock(start + 0.4));
    EXPECT_NE(clock(start + 0.4), clock(start + 0.8));
}

TEST(CarbonSkin, ItsLampsChaseBeyondTheRedLineOnly)
{
    const auto cpu = [](FaceState state, double time) {
        return drawnFace(view(Skin::carbon, WidgetKind::cpu), state, time);
    };
    EXPECT_TRUE(cpu(FaceState::sample, 100).moving.isEmpty());
    const DrawnFace printed = cpu(FaceState::extreme, 0);
    const QRect lamps = printed.movingRegion().boundingRect();
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
    for (const auto& [skin, make] : nightSkins) {
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

TEST(PartFills, PartsOfAWholeDifferInEveryAccent)
{
    constexpr double least = 50; // of 441, the way from black to white
    const auto apart = [](const QBrush& one, const QBrush& other) {
        const QColor a = one.color();
        const QColor b = other.color();
        return std::hypot(a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue());
    };
    QList<NightMember> skins(std::begin(nightSkins), std::end(nightSkins));
    skins.append({Skin::overdrive, overdriveSkin});
    for (const auto& [skin, make] : skins) {
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
