// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetsModel.h"

#include "window/widgets/DesktopWidgetsModel.h"

#include <QItemSelectionModel>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

QStringList titlesOf(const QAbstractItemModel& model)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row)
        titles.append(model.index(row, 0).data().toString());
    return titles;
}

TEST(WidgetsModelTest, ShowsTheKindsOfACategoryUnderItsTitle)
{
    WidgetsModel model;
    EXPECT_EQ(model.rowCount(), 21);
    model.show(WidgetCategory::time, {});
    EXPECT_EQ(titlesOf(model), QStringList({u"Time & Date"_s, u"Clock"_s, u"Calendar"_s, u"Countdown"_s}));
    EXPECT_FALSE(model.flags(model.index(0)) & Qt::ItemIsSelectable);
    EXPECT_EQ(model.kindAt(model.index(0)), std::nullopt);
    EXPECT_EQ(model.kindAt(model.first()), WidgetKind::clock);
    EXPECT_EQ(model.kindAt(model.indexOf(WidgetKind::countdown)), WidgetKind::countdown);
    EXPECT_FALSE(model.indexOf(WidgetKind::cpu).isValid());
}

TEST(WidgetsModelTest, FindsEveryWordInTitleDescriptionOrCategory)
{
    const auto found = [](const QString& search) {
        QStringList titles;
        for (const WidgetKind kind : WidgetsModel::found(WidgetCategory::all, search))
            titles.append(title(kind));
        return titles.join(u',');
    };
    EXPECT_EQ(found(u"POMODORO"_s), u"Focus Timer"_s); // description
    EXPECT_EQ(found(u"  sky moon "_s), u"Moon & Sun"_s); // category and title
    EXPECT_EQ(found(u"sky\tmoon"_s), u"Moon & Sun"_s) << "pasted from a table";
    EXPECT_EQ(found(u"clöck"_s), u"Clock"_s);
    EXPECT_EQ(found(u"clock pomodoro"_s), QString());
    EXPECT_EQ(WidgetsModel::found(WidgetCategory::music, u"clock"_s).size(), 0);
    WidgetsModel model;
    model.show(WidgetCategory::all, u"nothing like it"_s);
    EXPECT_EQ(model.rowCount(), 0) << "a heading over nothing";
    EXPECT_FALSE(model.first().isValid());
}

struct ListTest : testing::Test {
    const ScreenInfo left{.id = u"l"_s, .connector = u"HDMI-1"_s, .frame = {0, 0, 1000, 800}, .visibleFrame = {}};
    const ScreenInfo right{.id = u"r"_s, .connector = u"eDP-1"_s, .frame = {1000, 0, 1000, 800}, .visibleFrame = {}};
    WidgetConfig clock{WidgetKind::clock, Skin::hifi, WidgetScale::large, {1200, 100}};
    WidgetConfig cpu{WidgetKind::cpu, Skin::glass};
    WidgetConfig disk{WidgetKind::disk, Skin::glass};
    DesktopWidgetsModel model;

    void set(const QList<WidgetConfig>& configs)
    {
        QList<DesktopWidget> widgets;
        for (const WidgetConfig& config : configs)
            widgets.append(DesktopWidget::of(config, {left}));
        model.setWidgets(widgets);
    }
};

using DesktopWidgetsModelTest = ListTest;

TEST_F(DesktopWidgetsModelTest, SaysWhatAWidgetIsAndWhere)
{
    clock.city = u"Tokyo"_s;
    EXPECT_EQ(DesktopWidget::of(clock, {left}).title, u"Clock · Tokyo"_s);
    EXPECT_EQ(DesktopWidget::of(clock, {left}).caption, u"Hi-Fi · 125%"_s) << "one screen needs no name";
    EXPECT_EQ(DesktopWidget::of(clock, {left, right}).caption, u"Hi-Fi · 125% · Built-in Display"_s);
    EXPECT_EQ(DesktopWidget::of(cpu, {left, right}).caption, u"Glass · HDMI-1"_s);
    cpu.pinned = true;
    set({cpu});
    EXPECT_TRUE(model.index(0).data(Qt::AccessibleDescriptionRole).toString().contains(u"pinned"_s));
}

TEST_F(DesktopWidgetsModelTest, KeepsWhatIsChosenWhileOthersComeGoAndMove)
{
    set({clock, cpu, disk});
    QItemSelectionModel chosen(&model);
    chosen.select(model.index(1), QItemSelectionModel::Select);
    int told = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, [&] { ++told; });
    set({clock, cpu, disk});
    EXPECT_EQ(told, 0);
    cpu.skin = Skin::neon;
    set({disk, cpu});
    EXPECT_EQ(told, 1);
    ASSERT_EQ(chosen.selectedRows().size(), 1);
    EXPECT_EQ(model.idAt(chosen.selectedRows().first()), cpu.id);
    set({cpu, clock, disk});
    EXPECT_EQ(titlesOf(model), QStringList({u"CPU"_s, u"Clock"_s, u"Storage"_s}));
    EXPECT_EQ(model.idAt(chosen.selectedRows().value(0)), cpu.id);
    set({clock});
    EXPECT_FALSE(chosen.hasSelection());
}

} // namespace
} // namespace ambrelle
