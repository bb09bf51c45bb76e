// SPDX-License-Identifier: MIT

#include "skins/night/NightSkin.h"

#include "skins/SkinRegistry.h"
#include "skins/Skins.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace ambrelle {

namespace {

struct NightMember {
    Skin skin;
    std::shared_ptr<const FaceRenderer> (*make)(const std::optional<QColor>& accent);
};

constexpr NightMember nightSkins[] = {{Skin::obsidian, obsidianSkin}, {Skin::midnight, midnightSkin},
    {Skin::pulse, pulseSkin}, {Skin::prism, prismSkin}, {Skin::carbon, carbonSkin}, {Skin::velvet, velvetSkin}};

TEST(NightLook, AnAccentReplacesTheAccentOnly)
{
    const QColor mint(102, 242, 184);
    for (const auto& [skin, make] : nightSkins) {
        NightLook expected = NightLook::of(skin);
        EXPECT_EQ(expected.skin, skin);
        EXPECT_NE(expected.accent, mint);
        expected.accent = mint;
        EXPECT_EQ(NightLook::of(skin, mint), expected);
        EXPECT_EQ(make(mint)->style(), expected.style());
    }
    EXPECT_EQ(NightLook::of(Skin::paper), NightLook::of(Skin::obsidian));
}

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

struct Frame {
    QImage image;
    QRegion moving;
};

Frame frameAt(Skin skin, WidgetKind kind, double time)
{
    const FaceView face = view(skin, kind);
    Frame frame{QImage(face.size().toSize(), QImage::Format_RGB32), {}};
    frame.image.fill(Qt::black);
    QPainter painter(&frame.image);
    const Reading reading = stateReading(kind, FaceState::sample, QLocale::c());
    for (const Canvas::MovingArea& part : face.draw(painter, reading, {.time = time}).moving)
        frame.moving += part.area.toAlignedRect();
    return frame;
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
        const QImage printed = frameAt(skin, kind, 0).image;
        if (resting) {
            EXPECT_EQ(printed, frameAt(skin, kind, *resting).image) << rawValue(skin).data();
        }
        const Frame moved = frameAt(skin, kind, time);
        EXPECT_NE(printed, moved.image) << rawValue(skin).data();
        for (int y = 0; y < printed.height(); ++y) {
            for (int x = 0; x < printed.width(); ++x) {
                if (!moved.moving.contains(QPoint(x, y))) {
                    ASSERT_EQ(printed.pixel(x, y), moved.image.pixel(x, y)) << rawValue(kind).data() << x << ' ' << y;
                }
            }
        }
    }
}

CanvasRecord marksOf(Skin skin, WidgetKind kind, const Reading& reading)
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    CanvasRecord record;
    view(skin, kind).draw(painter, reading, {.record = &record});
    return record;
}

bool shows(const CanvasRecord& record, const QString& text)
{
    return std::ranges::any_of(record, [&](const CanvasMark& mark) { return mark.text == text; });
}

TEST(MidnightSkin, AChipTellsTheTrendAndGivesWayToTheTitle)
{
    using namespace Qt::StringLiterals;
    CpuReading cpu{.percent = 70, .history = {0, 0, 0.3, 0.9, 0.7}};
    const CanvasRecord rising = marksOf(Skin::midnight, WidgetKind::cpu, cpu);
    EXPECT_TRUE(shows(rising, u"arrow.up"_s) && shows(rising, u"40%"_s));
    cpu.history = {0.9, 0.7};
    EXPECT_TRUE(shows(marksOf(Skin::midnight, WidgetKind::cpu, cpu), u"arrow.down"_s));
    cpu.history = {0, 0, 0};
    EXPECT_TRUE(shows(marksOf(Skin::midnight, WidgetKind::cpu, cpu), u"0%"_s));

    CalendarReading month{.month = u"May"_s, .year = u"2026"_s};
    EXPECT_TRUE(shows(marksOf(Skin::midnight, WidgetKind::calendar, month), month.year));
    month.month = u"A month of a very long name"_s;
    EXPECT_FALSE(shows(marksOf(Skin::midnight, WidgetKind::calendar, month), month.year));

    const BatteryReading battery{.state = u"On battery power of the dock"_s, .remaining = u"99:59 until it is full"_s};
    EXPECT_TRUE(shows(marksOf(Skin::midnight, WidgetKind::battery, battery), battery.remaining));
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
        const FaceView face = view(Skin::pulse, WidgetKind::clock);
        QImage image(face.size().toSize(), QImage::Format_RGB32);
        QPainter painter(&image);
        face.draw(painter, reading, {});
        return pixelsNear(image, colour);
    };
    EXPECT_GT(lit(0, 0, 0, look.accent), 3 * lit(3, 0, 0, look.accent));
    EXPECT_GT(lit(0, 0, 0, look.accent2), 3 * lit(0, 15, 0, look.accent2));
    EXPECT_GT(lit(0, 0, 0, look.accent3), 3 * lit(0, 0, 15, look.accent3));
}

} // namespace

} // namespace ambrelle
