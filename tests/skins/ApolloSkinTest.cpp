// SPDX-License-Identifier: MIT

#include "skins/apollo/ApolloStyle.h"
#include "skins/DrawnFace.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>
#include <QSet>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct Drawn {
    QList<Canvas::MovingArea> moving;
    QSet<QRgb> colours;
};

Drawn drawnConsole(WidgetKind kind, FaceState state, const std::optional<QColor>& accent = {})
{
    const DrawnFace face = drawnFace({apolloSkin(accent), view(Skin::apollo, kind).face(), u"test"_s}, state);
    Drawn drawn{.moving = face.moving, .colours = {}};
    for (int y = 0; y < face.image.height(); ++y) {
        for (int x = 0; x < face.image.width(); ++x)
            drawn.colours.insert(face.image.pixel(x, y));
    }
    return drawn;
}

} // namespace

TEST(ApolloSkin, PensAndReelsMoveOnlyWhereThereIsSomethingToRecord)
{
    constexpr double most = 50; // points, the width of a reel
    for (const auto& [kind, count] :
        {std::pair(WidgetKind::cpu, 1), {WidgetKind::network, 2}, {WidgetKind::nowPlaying, 2}}) {
        const QList<Canvas::MovingArea> moving = drawnConsole(kind, FaceState::sample).moving;
        EXPECT_EQ(moving.size(), count) << rawValue(kind).data();
        for (const Canvas::MovingArea& area : moving) {
            EXPECT_LE(area.area.width(), most) << rawValue(kind).data();
            EXPECT_LE(area.motion.fps, 8) << rawValue(kind).data();
        }
        EXPECT_TRUE(drawnConsole(kind, FaceState::quiet).moving.isEmpty()) << rawValue(kind).data();
    }
}

TEST(ApolloSkin, AnAccentLightsWhatGlowsAndLeavesPaperAndMetalAlone)
{
    const QColor cyan(0x4C, 0xE6, 0xFF);
    const QRgb green = apollo::makeStyle({}).accent.rgb();
    for (const WidgetKind kind : {WidgetKind::clock, WidgetKind::cpu, WidgetKind::disk, WidgetKind::weather}) {
        const QSet<QRgb> own = drawnConsole(kind, FaceState::sample).colours;
        const QSet<QRgb> chosen = drawnConsole(kind, FaceState::sample, cyan).colours;
        EXPECT_TRUE(own.contains(green)) << rawValue(kind).data();
        EXPECT_TRUE(chosen.contains(cyan.rgb())) << rawValue(kind).data();
        EXPECT_FALSE(chosen.contains(green)) << rawValue(kind).data();
    }
    for (const QColor& kept : {apollo::paper, apollo::print, apollo::redInk})
        EXPECT_TRUE(drawnConsole(WidgetKind::cpu, FaceState::sample, cyan).colours.contains(kept.rgb()))
            << qPrintable(kept.name());
}

TEST(ApolloSkin, ABusTellsByItsColourWhatIsLeft)
{
    const SkinStyle style = apollo::makeStyle({});
    const auto lamps = [](double level) {
        QImage image(142, 40, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        Canvas canvas(painter, {});
        apolloSkin({})->charge(canvas, {0, 0, 142, 40}, {.level = level});
        return image.pixelColor(5, 20); // of the first lamp, below its light
    };
    constexpr int shading = 3; // degrees
    EXPECT_NEAR(lamps(0.3).hue(), style.accent.hue(), shading);
    EXPECT_NEAR(lamps(0.29).hue(), style.accent2.hue(), shading);
    EXPECT_NEAR(lamps(0.12).hue(), style.accent2.hue(), shading);
    EXPECT_NEAR(lamps(0.04).hue(), style.warn.hue(), shading) << "a lamp is lit as long as anything is left";
    EXPECT_EQ(lamps(0), apollo::well);
}

} // namespace ambrelle
