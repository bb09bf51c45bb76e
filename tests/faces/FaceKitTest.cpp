// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const SkinStyle plainStyle{.title = {.family = u"Inter"_s},
    .body = {.family = u"Inter"_s},
    .number = {.family = u"Inter"_s},
    .ink = Qt::black,
    .soft = Qt::darkGray,
    .faint = Qt::lightGray,
    .accent = Qt::blue,
    .warn = Qt::red,
    .ground = Qt::white};

/// A skin of nothing but a plate; counts the warnings.
struct BareSkin final : FaceRenderer {
    BareSkin()
        : FaceRenderer(plainStyle, DialFlavor::ring)
    {
    }
    Box plate(Canvas&, const FaceContext& face) const override { return face.bounds.inset(16); }
    void warning(Canvas&, const Box&) const override { ++warnings; }
    void key(Canvas&, const Box& box, const QString&, bool) const override { keys += box; }
    void level(Canvas&, const Box&, double, const QColor&) const override { ++levels; }

    double tilt(const FaceContext&) const override { return degrees; }

    double degrees = 0;
    mutable int warnings = 0;
    mutable int levels = 0;
    mutable QList<QRectF> keys;
};

struct FaceKitTest : testing::Test {
    Canvas::HitArea const* hitAt(QPointF point) const
    {
        for (const Canvas::HitArea& hit : canvas.hits()) {
            if (hit.area.contains(point))
                return &hit;
        }
        return nullptr;
    }

    BareSkin skin;
    QImage image{350, 170, QImage::Format_ARGB32_Premultiplied};
    QPainter painter{&image};
    CanvasRecord record;
    Canvas canvas{painter, {.record = &record}};
};

} // namespace

TEST_F(FaceKitTest, EveryValueBeyondItsThresholdIsMarkedOnce)
{
    DevicesReading devices;
    devices.rows = {{.name = u"Mouse"_s, .level = 0.1}, {.name = u"Phone"_s, .level = 0.9}};
    RemindersReading reminders;
    reminders.rows = {{.title = u"Late"_s, .due = u"Yesterday"_s, .overdue = true}, {.title = u"Later"_s}};
    const std::pair<Reading, WidgetKind> beyond[] = {
        {CpuReading{.history = {0.5, 0.9}, .high = true}, WidgetKind::cpu},
        {MemoryReading{.high = true}, WidgetKind::memory},
        {DiskReading{.high = true}, WidgetKind::disk},
        {BatteryReading{.low = true}, WidgetKind::battery},
        {devices, WidgetKind::devices},
        {reminders, WidgetKind::reminders},
    };
    for (const auto& [reading, kind] : beyond) {
        skin.warnings = 0;
        skin.drawAny(canvas, reading, {.kind = kind, .bounds = Box(0, 0, 170, 170)});
        EXPECT_EQ(skin.warnings, 1) << rawValue(kind).data();
    }
}

TEST_F(FaceKitTest, ManyDevicesGiveUpTheirLevelsBeforeOneIsLeftOut)
{
    const auto levelsOf = [&](int count) {
        DevicesReading devices;
        for (int index = 0; index < count; ++index)
            devices.rows.append({.name = QString::number(index), .level = 0.5, .percent = u"50%"_s});
        skin.levels = 0;
        record.clear();
        skin.drawAny(canvas, devices, {.kind = WidgetKind::devices, .bounds = Box(0, 0, 170, 170)});
        EXPECT_EQ(std::ranges::count(record, u"50%"_s, &CanvasMark::text), count);
        return skin.levels;
    };
    EXPECT_EQ(levelsOf(3), 3);
    EXPECT_EQ(levelsOf(5), 0);
}

TEST_F(FaceKitTest, ACaptionStandsNearerToItsOwnTitleThanToTheNext)
{
    RemindersReading reminders;
    EventsReading events;
    for (const QString& number : {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}) {
        reminders.rows.append({.title = u"Title "_s + number, .due = u"Due "_s + number});
        events.rows.append({.time = u"Due "_s + number, .title = u"Title "_s + number});
    }
    const std::pair<Reading, WidgetKind> lists[] = {
        {reminders, WidgetKind::reminders},
        {events, WidgetKind::events},
    };
    for (const auto& [reading, kind] : lists) {
        record.clear();
        skin.drawAny(canvas, reading, {.kind = kind, .bounds = Box(0, 0, 170, 170)});
        QList<double> middles; // of titles and captions by turns
        for (const CanvasMark& mark : record) {
            if (mark.text.startsWith(u"Title") || mark.text.startsWith(u"Due"))
                middles.append(mark.box.center().y());
        }
        ASSERT_GE(middles.size(), 6) << rawValue(kind).data();
        for (qsizetype caption = 1; caption + 1 < middles.size(); caption += 2)
            EXPECT_LT((middles[caption] - middles[caption - 1]) * 1.1, middles[caption + 1] - middles[caption])
                << rawValue(kind).data() << ' ' << caption;
    }
}

TEST_F(FaceKitTest, ASpanLiesInItsTrackWhateverItsEnds)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Box& track : {Box(10, 20, 100, 4), Box(10, 20, 4, 100)}) {
        for (const auto& [low, high] :
            {std::pair(0.0, 1.0), {0.2, 0.2}, {1.0, 1.0}, {0.0, 0.0}, {-3.0, 7.0}, {nan, 0.5}}) {
            const Box part = span(track, low, high);
            EXPECT_TRUE(track.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(part)) << low << " to " << high;
            EXPECT_GE(std::max(part.width(), part.height()), 4) << low << " to " << high;
        }
    }
    EXPECT_EQ(span(Box(0, 0, 100, 4), 0.25, 0.75), Box(25, 0, 50, 4));
    EXPECT_EQ(span(Box(0, 0, 4, 100), 0.25, 0.5), Box(0, 50, 4, 25)) << "high is above";
}

TEST_F(FaceKitTest, RowsFillTheirBoxAndAreNeverLowerThanTheirText)
{
    const auto drawn = [](const Box& box, qsizetype count, int most, double least) {
        QList<Box> places;
        rows(box, count, most, least, [&](const Box& row, qsizetype) { places += row; });
        return places;
    };
    const QList<Box> five = drawn({0, 0, 100, 110}, 8, 5, 18);
    ASSERT_EQ(five.size(), 5);
    EXPECT_DOUBLE_EQ(five.last().bottom(), 110);
    const QList<Box> tall = drawn({0, 0, 100, 110}, 8, 5, 30);
    ASSERT_EQ(tall.size(), 3);
    EXPECT_DOUBLE_EQ(tall.last().bottom(), 110);
    EXPECT_EQ(drawn({0, 0, 100, 110}, 2, 5, 18).size(), 2);
}

TEST_F(FaceKitTest, ControlsAreDrawnByTheSkinAndAnswerWhereTheyStand)
{
    controls(canvas, skin, Box(0, 0, 132, 26), true);
    ASSERT_EQ(skin.keys.size(), 3);
    const FaceAction::Verb verbs[] = {
        FaceAction::Verb::previousTrack, FaceAction::Verb::playPause, FaceAction::Verb::nextTrack};
    for (qsizetype index = 0; index < 3; ++index) {
        const Canvas::HitArea* hit = hitAt(skin.keys[index].center());
        ASSERT_NE(hit, nullptr);
        EXPECT_EQ(hit->action.verb, verbs[index]);
    }
}

TEST_F(FaceKitTest, AFaceThatHangsAskewAnswersWhereItsControlsHang)
{
    skin.degrees = 2;
    NowPlayingReading track{.title = u"Title"_s, .artist = u"Artist"_s, .playing = true};
    skin.drawAny(canvas, track, {.kind = WidgetKind::nowPlaying, .bounds = Box(0, 0, 350, 170)});
    ASSERT_EQ(skin.keys.size(), 3);
    const QPointF upright = skin.keys[0].center() - QPointF(175, 85);
    const double angle = 2 * std::numbers::pi / 180;
    const QPointF hung(0.97 * (upright.x() * std::cos(angle) - upright.y() * std::sin(angle)) + 175,
        0.97 * (upright.x() * std::sin(angle) + upright.y() * std::cos(angle)) + 85);
    ASSERT_EQ(canvas.hits().size(), 3);
    EXPECT_NEAR(canvas.hits()[0].area.center().x(), hung.x(), 0.01);
    EXPECT_NEAR(canvas.hits()[0].area.center().y(), hung.y(), 0.01);
    track.notice = {u"music.note"_s, u"Nothing playing"_s};
    record.clear();
    skin.drawAny(canvas, track, {.kind = WidgetKind::nowPlaying, .bounds = Box(0, 0, 350, 170)});
    ASSERT_FALSE(record.isEmpty());
    EXPECT_GT(record.first().ink.height(), 0) << "a notice hangs too";
}

TEST_F(FaceKitTest, AClockKeepsItsLeftEdgeAndClosesTheGapBeforeTheOne)
{
    const FigureStyle cells = plainStyle.figure(70);
    const auto ink = [](const QString& time, const FigureStyle& style) {
        return figurePath(time, {}, style, 400).digits.boundingRect();
    };
    const FigureStyle own = cells.kerned();
    EXPECT_LT(ink(u"09:41"_s, own).width(), ink(u"09:41"_s, cells).width() - 4);
    EXPECT_NEAR(ink(u"08:11"_s, own).left(), ink(u"08:44"_s, own).left(), 0.01);
}

TEST_F(FaceKitTest, SmallLettersLeaveUnitsAndInitialsAsTheyAre)
{
    SkinStyle style = plainStyle;
    const std::pair<QString, QString> sentences[] = {{u"412 GB free"_s, u"412 GB free"_s},
        {u"First Quarter in 4 days"_s, u"first quarter in 4 days"_s},
        {u"L 82 · R 85 · Case 60"_s, u"L 82 · R 85 · case 60"_s}, {QString(), QString()}};
    for (const auto& [sentence, small] : sentences) {
        style.lowercase = false;
        EXPECT_EQ(style.words(sentence), sentence);
        style.lowercase = true;
        EXPECT_EQ(style.words(sentence), small);
    }
}

TEST_F(FaceKitTest, WhatLiesOverAPhotoIsDrawnOverIt)
{
    struct Pinned final : FaceRenderer {
        using FaceRenderer::FaceRenderer;
        Box plate(Canvas& canvas, const FaceContext& face) const override
        {
            canvas.fill(face.bounds, Qt::white);
            return face.bounds;
        }
        void overPhoto(Canvas& canvas, const FaceContext&) const override { canvas.disc({85, 85}, 10, Qt::red); }
    };
    QImage blue(40, 40, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    const FaceContext face{.kind = WidgetKind::photo, .bounds = Box(0, 0, 170, 170)};
    Pinned(plainStyle, DialFlavor::ring).drawAny(canvas, PhotoReading{.picture = {blue}}, face);
    EXPECT_EQ(image.pixelColor(85, 85), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::blue));
}

} // namespace ambrelle
