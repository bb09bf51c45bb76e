// SPDX-License-Identifier: MIT

#include "faces/SharedFaces.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

/// The marks of a quote on a card that hangs straight.
CanvasRecord uprightQuote(FaceState state)
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    CanvasRecord record;
    Canvas canvas(painter, {.record = &record});
    const Reading quote = stateReading(WidgetKind::quote, state, QLocale::c());
    const FaceContext face = view(Skin::cork, WidgetKind::quote).face();
    drawShared(canvas, *corkSkin({}), std::get<QuoteReading>(quote), face);
    return record;
}

} // namespace

TEST(CorkSkin, PapersHangAskewWithinTheirFrames)
{
    constexpr double size = 0.97;
    int toTheLeft = 0;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceContext face = view(Skin::cork, kind).face();
        const double degrees = corkSkin({})->tilt(face);
        toTheLeft += degrees < 0 ? 1 : 0;
        EXPECT_GT(std::abs(degrees), 0.2) << rawValue(kind).data();
        const double turn = std::abs(degrees) * std::numbers::pi / 180;
        const QSizeF whole = face.bounds.size();
        const double height = size * (whole.height() * std::cos(turn) + whole.width() * std::sin(turn));
        EXPECT_LE(height, whole.height() + 0.5) << rawValue(kind).data();
    }
    EXPECT_GT(toTheLeft, 5);
    EXPECT_LT(toTheLeft, 15);
}

/// Where windows are cut nothing but the paper and what holds it is seen, and all of that.
TEST(CorkSkin, SilhouettesHoldThePapersAndNothingOfTheGround)
{
    constexpr int room = 10; // around the face, where pins reach
    constexpr int opaque = 200;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(Skin::cork, kind);
        const QSize size = face.size().toSize() + QSize(2 * room, 2 * room);
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(room, room);
        face.draw(painter, stateReading(kind, FaceState::sample, QLocale::c()), {});
        painter.end();
        const QRegion seen(face.silhouette().translated(room, room).toPolygon(), Qt::WindingFill);
        int clear = 0;
        int lost = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const int alpha = qAlpha(image.pixel(x, y));
                clear += seen.contains(QPoint(x, y)) && alpha < 255 - opaque ? 1 : 0;
                lost += !seen.contains(QPoint(x, y)) && alpha > opaque ? 1 : 0;
            }
        }
        EXPECT_LT(clear, 20) << rawValue(kind).data();
        EXPECT_LT(lost, 2 * (size.width() + size.height())) << rawValue(kind).data() << ": a pixel of the edge";
    }
}

TEST(CorkSkin, QuotesOfAllLengthsStandOnTheRules)
{
    constexpr double firstRule = 30;
    constexpr double pitch = 18;
    constexpr double below = 6.5; // a rule lies below the middle of the capitals on it
    for (const FaceState state : {FaceState::sample, FaceState::quiet, FaceState::extreme}) {
        const CanvasRecord record = uprightQuote(state);
        EXPECT_GE(record.size(), 3);
        for (const CanvasMark& mark : record) {
            const double rules = (mark.box.center().y() + below - firstRule) / pitch;
            EXPECT_NEAR(rules, std::round(rules), 0.05) << qPrintable(mark.text);
        }
    }
}

} // namespace ambrelle
