// SPDX-License-Identifier: MIT

#include "window/popover/WidgetSettings.h"
#include "desktop/Desk.h"
#include "platform/recording/RecordingAppearance.h"
#include "support/WaitUntil.h"
#include "window/look/SkinChooser.h"
#include "window/popover/CityChooser.h"
#include "window/popover/DateField.h"
#include "window/popover/PopoverPlacement.h"
#include "window/popover/SettingsForm.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSlider>
#include <QToolTip>

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {
namespace {

struct WidgetSettingsTest : DeskTest {
    RecordingAppearance appearance;
    WidgetSettings settings{{desk.manager, desk.host, appearance, desk.clock}};

    WidgetController& opened(WidgetKind kind)
    {
        WidgetController* widget = desk.add(kind, {400, 300});
        desk.useToolbar(*widget, WidgetToolbar::Button::settings);
        return *widget;
    }
    /// The control of the open popover that is called so.
    template <typename Control> Control* control(const QString& name) const
    {
        for (Control* candidate : settings.popover()->findChildren<Control*>()) {
            if (candidate->accessibleName() == name)
                return candidate;
        }
        return nullptr;
    }
    void press(int key) const { sendKey(settings.popover()->focusWidget(), key); }
    static void sendKey(QWidget* receiver, int key, const QString& text = {})
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(receiver, &event);
        }
    }
    static void type(QWidget* receiver, const QString& text)
    {
        for (const QChar letter : text)
            sendKey(receiver, 0, letter);
    }
};

TEST_F(WidgetSettingsTest, ASliderIsStoredBeforeItTellsAssistiveTechnology)
{
    WidgetController& widget = opened(WidgetKind::cpu);
    auto* slider = control<QSlider>(u"Opacity"_s);
    QList<std::pair<int, long>> stored; // the slider's value, and that of the record
    QObject::connect(&widget, &WidgetController::recordChanged, slider, [&] {
        stored.append({slider->value(), std::lround(desk.stored().first().opacity * 100)});
    });
    for (const int key : {Qt::Key_Left, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_Right})
        sendKey(slider, key);
    const QList<std::pair<int, long>> each{{100, 99}, {99, 89}, {89, 0}, {0, 1}};
    EXPECT_EQ(stored, each);
    EXPECT_EQ(slider->value(), 1);
}

TEST_F(WidgetSettingsTest, EveryControlIsShownAndStoredAtOnce)
{
    struct Case {
        const char* what;
        WidgetKind kind;
        std::function<void()> use;
        std::function<bool(const WidgetConfig&)> holds;
    };
    const auto click = [this](const QString& name) { control<QAbstractButton>(name)->click(); };
    const auto field = [this](const QString& name) { return control<DateField>(name); };
    const QDate today = desk.clock.now().date();
    const std::vector<Case> cases{
        {"skin", WidgetKind::cpu, [&] { control<SkinChooser>(u"Skin"_s)->setCurrentText(u"Corkboard"_s); },
            [](const auto& c) { return c.skin == Skin::cork; }},
        {"size", WidgetKind::cpu, [&] { click(u"Size: 150%"_s); },
            [](const auto& c) { return c.scale == WidgetScale::huge; }},
        {"backdrop", WidgetKind::cpu, [&] { click(u"Backdrop: Glass"_s); },
            [](const auto& c) { return c.backdrop == Backdrop::glass; }},
        {"opacity", WidgetKind::cpu, [&] { control<QSlider>(u"Opacity"_s)->setValue(0); },
            [](const auto& c) { return c.opacity == 0; }},
        {"border", WidgetKind::cpu, [&] { click(u"Border"_s); }, [](const auto& c) { return c.border; }},
        {"pin", WidgetKind::cpu, [&] { click(u"Pinned"_s); }, [](const auto& c) { return c.pinned; }},
        {"word", WidgetKind::quote, [&] { click(u"Every Day: A Word"_s); }, [](const auto& c) { return c.quoteWords; }},
        {"fill", WidgetKind::photo, [&] { click(u"Fill Frame"_s); }, [](const auto& c) { return !c.photoFill; }},
        {"interval", WidgetKind::photo, [&] { control<QComboBox>(u"Change"_s)->setCurrentText(u"Every hour"_s); },
            [](const auto& c) { return c.photoInterval == 60; }},
        {"title", WidgetKind::countdown, [&] { type(control<QLineEdit>(u"Title"_s), u"Zoë"_s); },
            [](const auto& c) { return c.countdownTitle == u"Zoë"_s; }},
        {"first date", WidgetKind::countdown, [&] { field(u"Date"_s)->setButton()->click(); },
            [&](const auto& c) {
                return c.countdownDate && c.countdownDate->date() > today && c.countdownStart == desk.clock.now();
            }},
        {"another date", WidgetKind::countdown,
            [&] {
                field(u"Date"_s)->setButton()->click();
                field(u"Date"_s)->editor()->setDateTime({{2031, 5, 9}, {18, 30}});
            },
            [](const auto& c) { return c.countdownDate == QDateTime(QDate(2031, 5, 9), QTime(18, 30)); }},
        {"start, and no date again", WidgetKind::countdown,
            [&] {
                field(u"Date"_s)->setButton()->click();
                field(u"Start"_s)->editor()->setDateTime({{2020, 1, 1}, {}});
                field(u"Date"_s)->clearButton()->click();
            },
            [](const auto& c) {
                return !c.countdownDate && c.countdownStart && c.countdownStart->date() == QDate(2020, 1, 1);
            }},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        desk.manager.removeAll();
        const WidgetController& widget = opened(row.kind);
        ASSERT_FALSE(row.holds(widget.config())) << "holds before";
        desk.paintAll();
        row.use();
        EXPECT_TRUE(row.holds(widget.config())) << "not taken over";
        EXPECT_EQ(desk.stored(), desk.live()) << "not stored";
    }
}

TEST_F(WidgetSettingsTest, CitiesSetTheirZoneAndAreFoundByTyping)
{
    const WidgetController& widget = opened(WidgetKind::clock);
    auto* cities = control<CityChooser>(u"City"_s);
    const auto enter = [&](const QString& text) {
        cities->lineEdit()->selectAll();
        type(cities->lineEdit(), text);
        sendKey(cities->lineEdit(), Qt::Key_Return);
    };
    enter(u"tok"_s);
    EXPECT_EQ(widget.config().city, u"Tokyo"_s);
    EXPECT_EQ(widget.config().timeZone, u"Asia/Tokyo"_s);
    enter(u"Atlantis"_s);
    EXPECT_EQ(widget.config().city, u"Tokyo"_s) << "a city nobody knows";
    EXPECT_EQ(cities->currentText(), u"Tokyo"_s);
    EXPECT_TRUE(QToolTip::isVisible() && QToolTip::text().contains(u"Atlantis"_s)) << "nobody says why";
    type(cities->lineEdit(), u"new york"_s);
    EXPECT_EQ(cities->currentText(), u"new york"_s) << "it is typed into what was there";
    EXPECT_TRUE(waitUntil([] { return !QToolTip::isVisible(); }));
    sendKey(cities->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(widget.config().city, u"New York"_s);
    enter(u"local time"_s);
    EXPECT_FALSE(widget.config().city || widget.config().timeZone);
    sendKey(cities, Qt::Key_Down);
    const std::optional<QString> first = widget.config().city;
    EXPECT_TRUE(first) << "the keys choose";
    EXPECT_EQ(cities->lineEdit()->selectedText(), first);
    type(cities->lineEdit(), u"Kyiv"_s);
    EXPECT_EQ(cities->currentText(), u"Kyiv"_s);
    // A theme may bring a city of its own.
    desk.manager.controllers().first()->change([](WidgetConfig& config) { config.city = u"Vienna"_s; });
    EXPECT_EQ(cities->currentText(), u"Vienna"_s);
}

TEST_F(WidgetSettingsTest, RowsConcernTheKindAndEveryControlHasAName)
{
    const QStringList everywhere{u"Skin"_s, u"Size"_s, u"Backdrop"_s, u"Opacity"_s, u"Border"_s, u"Pinned"_s};
    const std::map<WidgetKind, QStringList> special{{WidgetKind::clock, {u"City"_s}},
        {WidgetKind::photo, {u"Folder"_s, u"Change"_s, u"Fill Frame"_s}},
        {WidgetKind::countdown, {u"Title"_s, u"Date"_s, u"Start"_s}}, {WidgetKind::quote, {u"Every Day"_s}}};
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        SCOPED_TRACE(title(kind).toStdString());
        opened(kind);
        QStringList labels;
        for (const QLabel* label : settings.popover()->findChildren<QLabel*>()) {
            if (label->buddy())
                labels.append(label->text());
        }
        const auto own = special.find(kind);
        EXPECT_EQ(labels, (own == special.end() ? QStringList() : own->second) + everywhere);
        for (const QWidget* widget : settings.popover()->form().findChildren<QWidget*>()) {
            const bool reachable = widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy() && !widget->isHidden();
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const bool named = !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty())
                || (widget->parentWidget() && !widget->parentWidget()->accessibleName().isEmpty());
            EXPECT_TRUE(!reachable || named || widget->window() != settings.popover())
                << widget->metaObject()->className();
        }
    }
}

TEST_F(WidgetSettingsTest, ChangesFromElsewhereShow)
{
    WidgetController& widget = opened(WidgetKind::photo);
    const QString folder = u"/no/such/"_s + QString(300, u'x');
    widget.change([&](WidgetConfig& config) {
        config.opacity = 0.4;
        config.photoInterval = 7;
        config.photoFolder = folder;
    });
    desk.useToolbar(widget, WidgetToolbar::Button::pin);
    ASSERT_TRUE(settings.popover());
    EXPECT_EQ(control<QSlider>(u"Opacity"_s)->value(), 40);
    EXPECT_EQ(control<QComboBox>(u"Change"_s)->currentText(), u"Every 7 minutes"_s);
    EXPECT_TRUE(control<QCheckBox>(u"Pinned"_s)->isChecked());
    const int before = settings.popover()->width();
    settings.popover()->adjustSize();
    EXPECT_EQ(settings.popover()->width(), before) << "a long name is shortened";
    // Nothing that only shows may write.
    EXPECT_EQ(widget.config().opacity, 0.4);
    EXPECT_EQ(widget.config().photoInterval, 7);
    for (const double hostile : {std::nan(""), HUGE_VAL, -HUGE_VAL, -3.0}) {
        widget.change([&](WidgetConfig& config) { config.opacity = hostile; });
        EXPECT_TRUE(widget.config().opacity >= 0 && widget.config().opacity <= 1) << hostile;
    }
    EXPECT_EQ(desk.stored(), desk.live());
}

TEST_F(WidgetSettingsTest, EscapeClosesFromEveryControl)
{
    for (const WidgetKind kind : {WidgetKind::clock, WidgetKind::photo, WidgetKind::countdown, WidgetKind::quote}) {
        WidgetController& widget = opened(kind);
        QSet<QString> reached;
        for (int steps = 0; steps < 12; ++steps) {
            for (int i = 0; i < steps; ++i)
                press(Qt::Key_Tab);
            const QPointer<SettingsPopover> popover = settings.popover();
            const QString name = popover->focusWidget()->accessibleName();
            reached.insert(name);
            press(Qt::Key_Escape);
            EXPECT_FALSE(popover && popover->isVisible()) << name.toStdString();
            desk.useToolbar(widget, WidgetToolbar::Button::settings);
        }
        EXPECT_GE(reached.size(), 7) << "not all can be reached";
    }
}

TEST_F(WidgetSettingsTest, ClosesWhenItIsLeftOrItsWidgetGoes)
{
    WidgetController& first = opened(WidgetKind::countdown);
    const QPointer<SettingsPopover> before = settings.popover();
    WidgetController& second = opened(WidgetKind::clock);
    EXPECT_FALSE(before) << "two at once";
    const QPointer<SettingsPopover> last = settings.popover();
    desk.manager.remove(&first);
    EXPECT_TRUE(last && last->isVisible());
    desk.manager.remove(&second);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(last);
}

TEST_F(WidgetSettingsTest, RowsScrollOnAScreenThatIsTooLow)
{
    ScreenInfo low = desk.host.screens().first();
    low.frame = low.visibleFrame = {0, 0, 1024, 260};
    desk.host.setScreens({low});
    WidgetController* widget = desk.add(WidgetKind::countdown, {300, 40});
    settings.open(*widget);
    EXPECT_LE(settings.popover()->size().shrunkBy(settings.popover()->shadow()).height(), 260);
    const auto isSeen = [&](const QWidget* wanted) {
        const QRect visible = wanted->visibleRegion().boundingRect();
        return !visible.isEmpty()
            && settings.popover()->rect().contains(
                QRect(wanted->mapTo(settings.popover(), visible.topLeft()), visible.size()));
    };
    const auto* last = control<QCheckBox>(u"Pinned"_s);
    EXPECT_FALSE(isSeen(last));
    for (int steps = 0; steps < 30 && settings.popover()->focusWidget() != last; ++steps)
        press(Qt::Key_Tab);
    EXPECT_TRUE(isSeen(last)) << "the keyboard goes where nobody sees it";
    press(Qt::Key_Space);
    EXPECT_TRUE(widget->config().pinned);
}

TEST(PopoverPlacement, StandsBesideTheWidgetAndWholeOnItsScreen)
{
    const QList<ScreenInfo> screens{{.id = u"a"_s, .frame = {0, 0, 1440, 900}, .visibleFrame = {0, 0, 1440, 860}},
        {.id = u"b"_s, .frame = {1440, -100, 1000, 600}, .visibleFrame = {1440, -100, 1000, 600}}};
    struct Case {
        const char* what;
        QRectF widget;
        QPointF corner; // lower left
    };
    for (const Case& row : {
             Case{"room on the right: upper edges level", {400, 300, 170, 170}, {582, 70}},
             Case{"at the right edge: left of it", {1200, 300, 170, 170}, {840, 70}},
             Case{"low: pushed up", {400, 20, 170, 170}, {582, 8}},
             Case{"high: below the bar", {400, 800, 170, 170}, {582, 452}},
             Case{"on the second screen: not over the first", {1450, 100, 170, 170}, {1632, -92}},
         }) {
        const QRectF frame = popoverFrame(row.widget, {348, 400}, screens);
        EXPECT_EQ(frame.topLeft(), row.corner) << row.what;
        EXPECT_FALSE(frame.intersects(row.widget)) << row.what;
    }
    const QRectF wide = popoverFrame({300, 500, 900, 200}, {348, 400}, {screens[0]});
    EXPECT_FALSE(wide.intersects({300, 500, 900, 200})) << "below when neither side has room";
    const ScreenInfo bare{.id = u"c"_s, .frame = {0, 0, 1440, 900}};
    EXPECT_EQ(popoverFrame({400, 300, 170, 170}, {348, 400}, {bare}).topLeft(), QPointF(582, 70)) << "no work area";
    EXPECT_EQ(popoverRoom({400, 300, 170, 170}, {bare}), 884) << "no work area";
    const QRectF cramped = popoverFrame({0, 0, 1440, 860}, {348, 400}, {screens[0]});
    EXPECT_TRUE(screens[0].visibleFrame.contains(cramped));
}

} // namespace
} // namespace ambrelle
