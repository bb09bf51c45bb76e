// SPDX-License-Identifier: MIT

#include "model/Skin.h"
#include "skins/DrawnFace.h"
#include "skins/groove/GroovePieces.h"
#include "skins/groove/GrooveRecord.h"
#include "skins/groove/GrooveStyle.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include "drawing/Colours.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QLocale grooveLocales[] = {QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German)};

/// The topmost pixel of that colour in a column, or the image's height.
int topOf(const QImage& image, int x, const QColor& colour)
{
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(x, y) == colour)
            return y;
    }
    return image.height();
}

} // namespace

TEST(Groove, NoTextRunsUnderTheRainbow)
{
    constexpr double clearance = 2;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(Skin::groove, kind);
        const double radius = groove::Rainbow::of(face.face()).radius;
        for (const FaceState state : faceStates) {
            for (const QLocale& locale : grooveLocales) {
                for (const CanvasMark& mark : drawnFace(face, stateReading(kind, state, locale)).record) {
                    const QPointF way = face.face().bounds.bottomRight() - mark.ink.bottomRight();
                    EXPECT_GE(std::hypot(way.x(), way.y()), radius + clearance)
                        << rawValue(kind).data() << ", state " << static_cast<int>(state) << ": "
                        << qPrintable(mark.text);
                }
            }
        }
    }
}

TEST(Groove, LettersOnFillsCanBeReadWhateverTheAccent)
{
    for (const AccentChoice& choice : accentChoices(Skin::groove)) {
        const SkinStyle style = groove::makeStyle(choice.color);
        for (const QColor& fill : {style.accent, style.accent2, style.up, style.down})
            EXPECT_GE(contrast(groove::onFill(fill), fill), 4.5) << qPrintable(choice.name);
    }
}

TEST(Groove, TheSunRisesWithTheCharge)
{
    const QColor disc = groove::makeStyle({}).accent2;
    constexpr int horizon = 41;
    int before = horizon;
    for (const double level : {0.0, 0.2, 0.5, 0.8, 1.0}) {
        QImage image(134, 44, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        Canvas canvas(painter, {});
        grooveSkin({})->charge(canvas, Box(0, 0, 134, 44), {.level = level});
        painter.end();
        const int top = std::min(topOf(image, 67, disc), horizon);
        EXPECT_EQ(top<before, level> 0) << level;
        EXPECT_NE(image.pixelColor(67, horizon + 1), disc) << "the sun shines below the horizon";
        before = top;
    }
}

TEST(Groove, StripesKeepTheLevelOfAHistory)
{
    const History steady(60, 0.4);
    for (const double value : groove::softened(steady))
        EXPECT_DOUBLE_EQ(value, 0.4);
    const History rising{0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1};
    const History soft = groove::softened(rising);
    ASSERT_EQ(soft.size(), rising.size());
    EXPECT_TRUE(std::ranges::is_sorted(soft));
    EXPECT_DOUBLE_EQ(soft.first(), 0);
    EXPECT_DOUBLE_EQ(soft.last(), 1);
    EXPECT_TRUE(groove::softened({}).isEmpty());
}

TEST(Groove, NothingMovesButARecordThatPlays)
{
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(Skin::groove, kind);
        Reading reading = stateReading(kind, FaceState::sample, QLocale::c());
        auto* const track = std::get_if<NowPlayingReading>(&reading);
        if (track)
            track->playing = true;
        EXPECT_EQ(drawnFace(face, reading).moving.size(), track ? 1 : 0) << rawValue(kind).data();
        if (!track)
            continue;
        const QImage printed = drawnFace(face, reading).image;
        EXPECT_NE(drawnFace(face, reading, groove::secondsPerTurn / 3).image, printed);
        EXPECT_EQ(drawnFace(face, reading, groove::secondsPerTurn * 4).image, printed);
        track->playing = false;
        const DrawnFace resting = drawnFace(face, reading);
        EXPECT_TRUE(resting.moving.isEmpty());
        EXPECT_NE(resting.image, printed) << "the arm does not tell that the music stopped";
    }
}

} // namespace ambrelle
