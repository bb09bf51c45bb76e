// SPDX-License-Identifier: MIT

#include "skins/DrawnFace.h"
#include "skins/overdrive/OverdrivePieces.h"
#include "skins/overdrive/OverdriveStyle.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double period = 7; // seconds between two glitches
constexpr double seedShift = 1.37;
constexpr double length = 0.3;
constexpr double mostAside = 6; // points, ghosts included

double startOfGlitch(WidgetKind kind)
{
    return period * 10 - overdrive::glitchSeed(kind) * seedShift;
}

const QList<WidgetKind> torn{WidgetKind::clock, WidgetKind::cpu, WidgetKind::memory, WidgetKind::disk,
    WidgetKind::battery, WidgetKind::downloads, WidgetKind::weather};

} // namespace

TEST(OverdriveSkin, ChiefFiguresTearForAMomentAndStandWholeElse)
{
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(Skin::overdrive, kind);
        const auto at = [&](double time) { return drawnFace(face, FaceState::sample, time).image; };
        const QImage printed = at(0);
        const double start = startOfGlitch(kind);
        for (const double between : {start - 0.01, start + length + 0.01, start + period / 2})
            EXPECT_EQ(printed, at(between)) << rawValue(kind).data();
        int changed = 0;
        for (const double within : {0.01, 0.15, 0.29})
            changed += at(start + within) == printed ? 0 : 1;
        EXPECT_EQ(changed, torn.contains(kind) ? 3 : 0) << rawValue(kind).data();
    }
}

TEST(OverdriveSkin, SlicesStandBesideTheirFigureWhateverItShows)
{
    for (const WidgetKind kind : torn) {
        const FaceView face = view(Skin::overdrive, kind);
        for (const FaceState state : {FaceState::sample, FaceState::quiet, FaceState::extreme}) {
            const CanvasRecord still = drawnFace(face, state).record;
            const CanvasRecord all = drawnFace(face, state, startOfGlitch(kind) + 0.1).record;
            ASSERT_GT(all.size(), still.size());
            for (const CanvasMark& slice : all.sliced(still.size())) {
                const bool besideItsFigure = std::ranges::any_of(still, [&](const CanvasMark& mark) {
                    const QPointF way = slice.ink.topLeft() - mark.ink.topLeft();
                    return mark.text == slice.text && std::abs(mark.size - slice.size) < 0.01
                        && mark.ground == slice.ground && std::abs(way.y()) < 0.01 && std::abs(way.x()) <= mostAside;
                });
                EXPECT_TRUE(besideItsFigure)
                    << rawValue(kind).data() << ", state " << static_cast<int>(state) << ": " << qPrintable(slice.text);
            }
        }
    }
}

TEST(OverdriveSkin, SkiesDifferAndStayInTheirBox)
{
    QList<QImage> seen;
    for (int value = 0; value <= static_cast<int>(Sky::unknown); ++value) {
        QImage image(68, 68, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        Canvas canvas(painter, {});
        overdrive::skyPicture(canvas, overdrive::makeStyle({}), {10, 10, 48, 48}, static_cast<Sky>(value));
        painter.end();
        EXPECT_FALSE(seen.contains(image)) << value;
        seen.append(image);
        for (int place = 0; place < image.width(); ++place) {
            for (const int edge : {6, 61}) {
                EXPECT_EQ(image.pixelColor(place, edge).alpha(), 0) << value;
                EXPECT_EQ(image.pixelColor(edge, place).alpha(), 0) << value;
            }
        }
    }
}

TEST(OverdriveSkin, BlocksShowTheLeastAndNothing)
{
    const overdrive::BlockRow row{.count = 10};
    EXPECT_EQ(row.lit(0), 0);
    EXPECT_EQ(row.lit(std::nan("")), 0);
    EXPECT_EQ(row.lit(0.001), 1);
    EXPECT_EQ(row.lit(0.94), 9);
    EXPECT_EQ(row.lit(1.7), 10);
}

TEST(OverdriveSkin, TheLastBlocksOfADialAreRedWhenLit)
{
    QImage image(120, 120, QImage::Format_ARGB32_Premultiplied);
    const auto at = [&](double fraction, double degrees) {
        QPainter painter(&image);
        Canvas canvas(painter, {});
        overdriveSkin({})->progressDial(canvas, {0, 0, 120, 120}, fraction, Qt::green);
        const double radius = 60 - 3 - 5;
        const double angle = degrees * std::numbers::pi / 180;
        return image.pixelColor(QPointF(60 + radius * std::sin(angle), 67.5 - radius * std::cos(angle)).toPoint());
    };
    const double first = -135 + 270 / 48.0;
    const double last = 135 - 270 / 48.0;
    EXPECT_EQ(at(0.5, first), QColor(Qt::green));
    EXPECT_EQ(at(0.5, last), overdriveSkin({})->style().faint);
    EXPECT_EQ(at(1, last), overdrive::red);
    EXPECT_EQ(at(1, first), QColor(Qt::green));
}

} // namespace ambrelle
