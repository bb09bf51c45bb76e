// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"
#include "desktop/QuickMenu.h"
#include "desktop/WidgetMenu.h"
#include "faces/MoonPhase.h"
#include "model/WeatherCode.h"
#include "model/WidgetCategory.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/headless/HeadlessSources.h"
#include "platform/recording/RecordingAnnouncer.h"
#include "platform/recording/RecordingAppearance.h"
#include "skins/SkinRegistry.h"
#include "support/OtherLetters.h"
#include "window/frame/MoreMenu.h"
#include "window/popover/WidgetSettings.h"
#include "window/WindowDesk.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QRegularExpression>
#include <QTabBar>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

class TranslationTest : public testing::Test {
protected:
    OtherLetters letters; // first: texts are made from now on
    UserDefaults store = UserDefaults::temporary();
    WindowDesk home{store};
    Desk& desk = home.desk;
    QuickMenu& quick = home.quick;
    /// Words that are no texts of the program: lettering of instruments and games among them.
    QStringList data{u"VU"_s, u"UTC"_s, u"GEN"_s, u"BAT"_s, u"HP"_s, u"MP"_s, u"Ambrelle"_s, u"DP"_s, u"E"_s, u"P"_s,
        u"GET"_s, u"HOURS"_s, u"MIN"_s, u"CHG"_s, u"AC"_s, u"LAP"_s, u"span"_s, u"br"_s};

    TranslationTest()
    {
        home.updates = {.found = u"2.1"_s, .enabled = true};
        for (int i = 1; i <= 12; ++i)
            for (const auto form : {QLocale::LongFormat, QLocale::ShortFormat, QLocale::NarrowFormat})
                data += {QLocale::c().standaloneDayName(i % 7 + 1, form), QLocale::c().standaloneMonthName(i, form)};
    }

    void expectTranslated(const QString& text, const std::string& where) const
    {
        static const QRegularExpression word(u"(?![IVXivx]+\\b)[A-Za-z]+"_s); // no Roman numeral
        for (auto found = word.globalMatch(text); found.hasNext();)
            EXPECT_TRUE(data.contains(found.next().captured(), Qt::CaseInsensitive))
                << where << ": " << qPrintable(text);
    }
    void expectTranslated(const QList<ActionItem>& items) const
    {
        for (const ActionItem& item : items) {
            expectTranslated(item.title, "a menu");
            expectTranslated(item.items);
        }
    }
    void expectTranslated(const QWidget& window, const std::string& where) const
    {
        for (const QWidget* widget : window.findChildren<QWidget*>() + QList{const_cast<QWidget*>(&window)}) {
            if (qobject_cast<const QTabBar*>(widget->parent()))
                continue; // arrows of the toolkit
            for (const char* text : {"accessibleName", "windowTitle", "text", "placeholderText", "toolTip"})
                expectTranslated(widget->property(text).toString(), where);
            if (const auto* box = qobject_cast<const QComboBox*>(widget))
                for (int i = 0; i < box->count(); ++i)
                    expectTranslated(box->itemText(i) + box->itemData(i, Qt::ToolTipRole).toString(), where);
        }
    }
    void expectFacesTranslated()
    {
        QImage nowhere(1, 1, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&nowhere);
        for (const WidgetKind kind : allCases<WidgetKind>()) {
            for (const Skin skin : allCases<Skin>()) {
                WidgetConfig config(kind, skin);
                config.city = u"–"_s;
                config.timeZone = u"Asia/Kolkata"_s;
                config.countdownDate = desk.clock.now().addDays(static_cast<int>(skin) - 2);
                CanvasRecord record;
                if (kind != WidgetKind::quote) // its texts are data
                    view(skin, kind).draw(painter, desk.feed.readingFor(config), {.record = &record});
                for (const CanvasMark& mark : record)
                    if (mark.kind != CanvasMark::Kind::symbol)
                        expectTranslated(mark.text, title(kind).toStdString() + " in " + title(skin).toStdString());
            }
        }
    }
};

TEST_F(TranslationTest, ReachesFacesMenusAndPopovers)
{
    RecordingAppearance appearance;
    WidgetSettings settings{{desk.manager, desk.host, appearance, desk.clock}};
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        WidgetController& widget = *desk.add(kind, {400, 300});
        desk.useToolbar(widget, WidgetToolbar::Button::settings);
        expectTranslated(*settings.popover(), "a popover");
        expectTranslated(widgetMenu(widget, desk.manager, quick));
        const PanelDelegate& panel = desk.panels().last()->delegate();
        expectTranslated(panel.accessibleName(), "a panel");
        for (const PanelButton& button : panel.buttons())
            expectTranslated(button.name, "a toolbar");
    }
    expectFacesTranslated(); // notices: there is nothing to tell yet
    desk.monitor.loadPreviewData();
    for (const ProcessRow& process : desk.monitor.sample().processes)
        data += {process.name, process.name.first(1)}; // whole, and cut
    desk.services.live.loadPreviewData({});
    expectFacesTranslated();
}

TEST_F(TranslationTest, ReachesTheMainWindow)
{
    for (const MainTab tab : allCases<MainTab>()) {
        home.window.show(tab);
        for (const QWidget* window : QApplication::topLevelWidgets())
            expectTranslated(*window, "the main window");
        expectTranslated(title(tab), "a tab");
    }
    desk.services.live.focus.start();
    expectTranslated(quick.items());
    expectTranslated(moreItems(quick, {}));
}

TEST_F(TranslationTest, ReachesTablesAndReasons)
{
    for (const WidgetKind kind : allCases<WidgetKind>())
        expectTranslated(description(kind), "a description");
    for (const WidgetCategory category : allCases<WidgetCategory>())
        expectTranslated(title(category) + shortLabel(category), "a category");
    for (const WidgetLayer layer : allCases<WidgetLayer>())
        expectTranslated(title(layer), "a layer");
    for (const OverlapBehavior behavior : allCases<OverlapBehavior>())
        expectTranslated(title(behavior), "a behaviour");
    for (const Skin skin : allCases<Skin>())
        for (const AccentChoice& choice : accentChoices(skin))
            expectTranslated(choice.name, "an accent");
    for (int number = 0; number < 100; ++number)
        expectTranslated(
            WeatherCode::description(number) + MoonPhase::name(desk.clock.now().addDays(number)), "the sky");

    RecordingAnnouncer announcer;
    FocusTimer timer(announcer, desk.settings, store, desk.clock);
    timer.start();
    desk.clock.advance(std::chrono::hours(1));
    EXPECT_EQ(announcer.said.size(), 4); // two sounds, two notifications
    for (const QString& said : announcer.said)
        expectTranslated(said == u"glass"_s || said == u"hero"_s ? QString() : said, "a notification");

    const HeadlessSources machine;
    const SystemSources sources = machine.sources();
    const HeadlessPorts& ports = desk.services.ports;
    for (const QString& reason : {sources.processor.whyNot(), sources.network.whyNot(), ports.http.whyNot(),
             ports.location.whyNot(), ports.players.whyNot(), ports.calendars.whyNot(), ports.announcer.whyNot(),
             ports.devices.whyNot(), ports.input.whyNot(), HeadlessAppearance().whyNot(),
             HeadlessDesktopPicture().whyNot(), HeadlessSessionVisibility().whyNot(), HeadlessWindowList().whyNot()})
        expectTranslated(reason.isEmpty() ? u"no reason"_s : reason, "a reason");
}

} // namespace
} // namespace ambrelle
