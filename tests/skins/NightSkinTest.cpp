// SPDX-License-Identifier: MIT

#include "skins/night/NightSkin.h"

#include "skins/SkinRegistry.h"
#include "skins/Skins.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

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

Frame obsidianAt(double time)
{
    const FaceView face = view(Skin::obsidian, WidgetKind::clock);
    Frame frame{QImage(face.size().toSize(), QImage::Format_RGB32), {}};
    frame.image.fill(Qt::black);
    QPainter painter(&frame.image);
    const Reading reading = stateReading(WidgetKind::clock, FaceState::sample, QLocale::c());
    for (const Canvas::MovingArea& part : face.draw(painter, reading, {.time = time}).moving)
        frame.moving += part.area.toAlignedRect();
    return frame;
}

TEST(ObsidianSkin, TheEdgeTurnsInItsStripsAndRestsAsItIsPrinted)
{
    constexpr double period = 14;
    constexpr double start = period * 10 - 1.37; // of a turn of the clock's edge
    const QImage printed = obsidianAt(0).image;
    EXPECT_EQ(printed, obsidianAt(start + 5).image);
    const Frame turned = obsidianAt(start + 0.8);
    EXPECT_NE(printed, turned.image);
    for (int y = 0; y < printed.height(); ++y) {
        for (int x = 0; x < printed.width(); ++x) {
            if (!turned.moving.contains(QPoint(x, y))) {
                ASSERT_EQ(printed.pixel(x, y), turned.image.pixel(x, y)) << x << ' ' << y;
            }
        }
    }
}

} // namespace

} // namespace ambrelle
