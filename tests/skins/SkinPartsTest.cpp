// SPDX-License-Identifier: MIT

#include "model/ThemeAccent.h"
#include "skins/classic/BitPictures.h"
#include "skins/DrawnFace.h"
#include "skins/hifi/Nixie.h"
#include "skins/hifi/VuMeter.h"
#include "skins/minimal/MinimalLook.h"
#include "skins/neon/NeonStyle.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QImage clockAt(double time)
{
    return drawnFace(view(Skin::classic, WidgetKind::clock), FaceState::sample, time).image;
}

TEST(ClassicSkin, WeatherPicturesFillTheirGridAndDiffer)
{
    QList<QImage> seen;
    for (int value = 0; value <= static_cast<int>(Sky::unknown); ++value) {
        const Sprite& sprite = classic::bitPicture(static_cast<Sky>(value));
        EXPECT_EQ(sprite.size(), QSize(16, 16)) << value;
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::white);
        const QImage blank = picture;
        QPainter painter(&picture);
        Canvas canvas(painter, {});
        sprite.draw(canvas, {0, 0, 16, 16}, 1);
        EXPECT_NE(picture, blank) << value;
        EXPECT_FALSE(seen.contains(picture)) << value;
        seen.append(picture);
    }
}

TEST(MemoryFaces, PartsOfTheMemoryKeepTheirUnits)
{
    const Reading reading = stateReading(WidgetKind::memory, FaceState::sample, QLocale::c());
    for (const Skin skin : allCases<Skin>()) {
        const CanvasRecord record = drawnFace(view(skin, WidgetKind::memory), reading).record;
        for (const Share& part : std::get<MemoryReading>(reading).parts) {
            const auto tells = [&](const QString& text) {
                return std::ranges::any_of(record, [&](const CanvasMark& mark) { return mark.text == text; });
            };
            const QString number = part.value.section(u' ', 0, 0);
            EXPECT_FALSE(tells(number)) << rawValue(skin).data() << ' ' << qPrintable(number);
        }
    }
}

TEST(ClassicSkin, ColonIsDarkInOddSeconds)
{
    const QImage printed = clockAt(0);
    EXPECT_EQ(printed, clockAt(800000000.25));
    EXPECT_NE(printed, clockAt(800000001.25));
}

class HiFiParts : public testing::Test {
protected:
    QList<Canvas::MovingArea> movingAreas(const std::function<void(Canvas&)>& draw)
    {
        QPainter painter(&m_image);
        Canvas canvas(painter, {});
        draw(canvas);
        return canvas.movingAreas();
    }

    SkinStyle m_style = hifi::makeStyle(std::nullopt);
    hifi::VuMeter m_meter{.style = m_style, .window = Box(16, 38, 138, 70)};

private:
    QImage m_image{170, 170, QImage::Format_ARGB32_Premultiplied};
};

TEST_F(HiFiParts, NeedleSweepsFromLeftToRightInsideItsWindow)
{
    double before = -1;
    for (const double fraction : {0.0, 0.25, 0.5, 0.85, 1.0}) {
        const QPointF tip = m_meter.gauge().at(fraction, m_meter.gauge().radius + 3.5);
        EXPECT_TRUE(m_meter.window.contains(tip)) << fraction;
        EXPECT_GT(tip.x(), before);
        before = tip.x();
    }
    EXPECT_DOUBLE_EQ(m_meter.gauge().at(0.5, 10).x(), m_meter.window.center().x());
}

TEST_F(HiFiParts, NeedleRestsWithoutASignalAndElseMovesInATightArea)
{
    for (const double nothing : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_TRUE(movingAreas([&](Canvas& canvas) { m_meter.needle(canvas, nothing, 1); }).isEmpty()) << nothing;
    for (const double fraction : {0.3, 1.0, 7.0}) {
        const auto areas = movingAreas([&](Canvas& canvas) { m_meter.needle(canvas, fraction, 1); });
        ASSERT_EQ(areas.size(), 1) << fraction;
        EXPECT_TRUE(m_meter.window.contains(areas[0].area)) << fraction;
        EXPECT_LT(areas[0].area.width(), m_meter.window.width() * 0.6) << fraction;
    }
}

TEST_F(HiFiParts, TubesAreLitAtTimeZeroAndOnlyDigitsFlicker)
{
    const hifi::Nixies tubes{.style = m_style, .cap = 30, .name = u"t"_s};
    const auto areas = movingAreas([&](Canvas& canvas) { tubes.draw(canvas, {0, 0, 170, 60}, u" 9:41"_s); });
    EXPECT_EQ(areas.size(), 3); // the blank and the colon stay as they are
    for (const Canvas::MovingArea& area : areas)
        EXPECT_GT(area.motion.next(0), area.motion.burst) << "a burst runs at time 0";
}

/// The look without what light and dark may change.
MinimalLook measuresOf(Skin skin)
{
    MinimalLook look = MinimalLook::original(skin);
    look.skin = Skin::polar;
    for (QColor MinimalLook::*colour :
        {&MinimalLook::ink, &MinimalLook::soft, &MinimalLook::faint, &MinimalLook::accent, &MinimalLook::accent2,
            &MinimalLook::accent3, &MinimalLook::panelFill, &MinimalLook::up, &MinimalLook::down, &MinimalLook::warn,
            &MinimalLook::border, &MinimalLook::shadow, &MinimalLook::cloud, &MinimalLook::key})
        look.*colour = QColor();
    look.wash = look.tint = look.coverWash = look.plateBorder = 0;
    return look;
}

TEST(MinimalLook, ChangingBetweenLightAndDarkMovesNothing)
{
    EXPECT_EQ(measuresOf(Skin::slate), measuresOf(Skin::lumen));
    EXPECT_EQ(measuresOf(Skin::field), measuresOf(Skin::fieldDark));
    EXPECT_NE(measuresOf(Skin::slate), measuresOf(Skin::field));
}

} // namespace

TEST(SkinStyles, AnAccentReplacesTheSkinsOwnAndNothingElse)
{
    const QColor mint(102, 242, 184);
    for (const Skin skin : allCases<Skin>()) {
        SkinStyle expected = styleOf(skin);
        EXPECT_NE(expected.accent, mint);
        if (supportsAccent(skin))
            expected.accent = mint;
        ThemeAccent::shared().withPreview(
            mint, skin, [&] { EXPECT_EQ(styleOf(skin), expected) << rawValue(skin).data(); });
    }
}

TEST(NeonSkin, EverySignBurnsInThePrintedFrameAndFlickersAtItsOwnMoment)
{
    constexpr double period = 9;
    constexpr double seedShift = 1.37; // seconds
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(Skin::neon, kind);
        const double seed = static_cast<int>(kind) + 1;
        const double burst = period * 10 - seed * seedShift;
        const auto at = [&](double time) { return drawnFace(face, FaceState::sample, time).image; };
        const QImage printed = at(0);
        EXPECT_EQ(printed, at(burst + 1)) << rawValue(kind).data() << " is not steady between two bursts";
        EXPECT_NE(printed, at(burst + 0.001)) << rawValue(kind).data() << " never flickers";
    }
}

TEST(NeonSkin, OnlyWhatTheScriptCanWriteIsWrittenInIt)
{
    const SkinStyle style = neon::makeStyle({});
    for (const QString& text : {u"Northern Lights"_s, u"São Tomé & Príncipe, 12:30…"_s})
        EXPECT_EQ(neon::script(style, text, 18).face, style.title) << qPrintable(text);
    for (const QString& text : {u"夜に駆ける"_s, u"Северное сияние"_s, u"Live 夜"_s})
        EXPECT_EQ(neon::script(style, text, 18).face, style.body) << qPrintable(text);
}

TEST(NeonSkin, AnotherAccentLeavesTheOtherTubesAlone)
{
    const auto drawn = [](WidgetKind kind, const std::optional<QColor>& accent) {
        return drawnFace({neonSkin(accent), view(Skin::neon, kind).face(), {}}).image;
    };
    const QColor lime(0x99, 0xFF, 0x33);
    EXPECT_EQ(drawn(WidgetKind::network, lime), drawn(WidgetKind::network, {}));
    EXPECT_NE(drawn(WidgetKind::cpu, lime), drawn(WidgetKind::cpu, {}));
}

TEST(PaperSkin, NothingMovesAndOnlyTheMarksFollowTheAccent)
{
    const auto drawn = [](WidgetKind kind, const std::optional<QColor>& accent) {
        const DrawnFace face = drawnFace({paperSkin(accent), view(Skin::paper, kind).face(), {}});
        EXPECT_TRUE(face.moving.isEmpty()) << rawValue(kind).data();
        return face.image;
    };
    const QColor cobalt(0x1F, 0x59, 0xD9);
    using enum WidgetKind;
    const QList<WidgetKind> plainInk{clock, network, events, photo, quote, processes};
    for (const WidgetKind kind : allCases<WidgetKind>())
        EXPECT_EQ(drawn(kind, {}) == drawn(kind, cobalt), plainInk.contains(kind)) << rawValue(kind).data();
}

} // namespace ambrelle
