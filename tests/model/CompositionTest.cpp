// SPDX-License-Identifier: MIT

#include "model/Composition.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ambrelle {
namespace {

const QSizeF vast(10000, 10000);

TEST(CompositionTest, WidgetsOfAPresetDoNotOverlap)
{
    for (const Skin skin : allCases<Skin>()) {
        const QList<PlacedWidget> widgets = Composition::frames(skin, vast);
        for (qsizetype i = 0; i < widgets.size(); ++i) {
            for (qsizetype j = 0; j < i; ++j) {
                EXPECT_FALSE(widgets[i].frame.intersects(widgets[j].frame))
                    << rawValue(skin).data() << ": " << rawValue(widgets[i].config.kind).data() << " on "
                    << rawValue(widgets[j].config.kind).data();
            }
        }
    }
}

TEST(CompositionTest, EveryPresetStaysInsideTheMarginsOfEveryScreen)
{
    const QSizeF sizes[] = {vast, {1920, 1040}, {1280, 770}, {1024, 740}, {800, 1200}, {640, 400}};
    for (const Skin skin : allCases<Skin>()) {
        for (const QSizeF& size : sizes) {
            // Whole sizes may reach half a point further than the shrunk design.
            const QRectF inside = QRectF({}, size).adjusted(55.5, 29.5, -55.5, -29.5);
            const QList<PlacedWidget> widgets = Composition::frames(skin, size);
            EXPECT_EQ(widgets.size(), Composition::preset(skin).spots.size());
            for (const PlacedWidget& widget : widgets) {
                EXPECT_TRUE(inside.contains(widget.frame)) << rawValue(skin).data() << " on " << size.width();
                EXPECT_EQ(widget.config.skin, skin);
                EXPECT_EQ(widget.config.size(), widget.frame.size());
            }
        }
    }
}

// Slate: five columns and three rows of 180 points make a design of 890 by 530.
TEST(CompositionTest, ALayoutThatFitsIsCentredAtItsNaturalSize)
{
    const QList<PlacedWidget> widgets = Composition::frames(Skin::slate, QSizeF(1920, 1040));
    EXPECT_EQ(widgets[0].config.kind, WidgetKind::clock);
    EXPECT_EQ(widgets[0].config.fit, 1);
    EXPECT_EQ(widgets[0].frame, QRectF(515, 255, 350, 170));
    EXPECT_EQ(widgets[6].config.kind, WidgetKind::events);
    EXPECT_EQ(widgets[6].frame, QRectF(515 + 720, 255 + 180, 170, 170));
}

TEST(CompositionTest, ALayoutThatIsTooLargeShrinksAsAWhole)
{
    // The width decides: (557 - 112) / 890 = 0.5; the height would leave 0.8.
    const QList<PlacedWidget> narrow = Composition::frames(Skin::lumen, QSizeF(557, 484));
    EXPECT_EQ(narrow[0].config.fit, 0.5);
    EXPECT_EQ(narrow[0].frame, QRectF(56, 242 - 132.5, 175, 85));
    EXPECT_EQ(narrow[10].frame, QRectF(56 + 360, 242 - 132.5 + 180, 85, 85));
    // The height decides: (219 - 60) / 530 = 0.3. The clock's centre stands 90 design points right of the left edge...
    const QList<PlacedWidget> low = Composition::frames(Skin::slate, QSizeF(2000, 219));
    EXPECT_DOUBLE_EQ(low[0].config.fit, 0.3);
    EXPECT_DOUBLE_EQ(low[0].frame.center().x(), 1000 + 0.3 * (175 - 445));
    EXPECT_DOUBLE_EQ(low[0].frame.center().y(), 109.5 + 0.3 * (85 - 265));
    EXPECT_EQ(low[0].frame.size(), QSizeF(105, 51));
}

TEST(CompositionTest, NoAreaMakesWidgetsVanish)
{
    for (const QSizeF& size : {QSizeF(0, 0), QSizeF(100, 1000), QSizeF(1000, 20), QSizeF(-5, -5)}) {
        const QList<PlacedWidget> widgets = Composition::frames(Skin::velvet, size);
        EXPECT_TRUE(std::ranges::all_of(widgets, [](const PlacedWidget& widget) { return !widget.frame.isEmpty(); }));
        EXPECT_EQ(WidgetConfig::decodeList(WidgetConfig::encodeList({widgets[0].config}))->size(), 1);
    }
}

TEST(CompositionTest, TheTopOfTheDesignIsAtTheTopOfTheScreen)
{
    // A second screen left of and below the main one, with a panel of 40 points at its lower edge.
    const QRectF area(-1920, -1040, 1920, 1040);
    const QList<WidgetConfig> widgets = Composition::widgets(Skin::slate, area);
    EXPECT_EQ(widgets[0].frame(), QRectF(-1920 + 515, -255 - 170, 350, 170));
    const QPointF bottomRow = widgets[7].origin;
    EXPECT_EQ(bottomRow, QPointF(-1920 + 515, -255 - 360 - 170));
    const auto framesThere = Composition::frames(Skin::velvet, area.size());
    const auto widgetsThere = Composition::widgets(Skin::velvet, area);
    for (qsizetype i = 0; i < widgetsThere.size(); ++i) {
        EXPECT_EQ(widgetsThere[i].size(), framesThere[i].frame.size());
        EXPECT_DOUBLE_EQ(
            area.bottom() - (widgetsThere[i].origin.y() + widgetsThere[i].size().height()), framesThere[i].frame.y());
    }
}

} // namespace
} // namespace ambrelle
