// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"
#include "window/look/Button.h"
#include "window/look/Segments.h"
#include "window/settings/DesktopSection.h"
#include "window/settings/SettingsFields.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct SettingsRowTest : testing::Test {
    UserDefaults store = UserDefaults::temporary();
    AppSettings settings{store};
    QStringList changed;
    int edits = 0;

    SettingsRowTest()
    {
        QObject::connect(&settings, &AppSettings::changed, &settings, [this](const QString& key) { changed += key; });
    }
    static SettingsRow& row(const SettingsSection& section, const QString& name)
    {
        for (SettingsRow* row : section.rows()) {
            if (row->text().name == name)
                return *row;
        }
        ADD_FAILURE() << "no row " << qPrintable(name);
        return *section.rows().first();
    }
    static void press(QWidget* receiver, int key, const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(receiver, &event);
    }
};

TEST_F(SettingsRowTest, EveryRowOfTheDesktopWritesItsSettingOnceAndFollowsIt)
{
    DesktopSection section(settings, {}, [this] { ++edits; });
    QStringList titles;
    for (const SettingsGroup* group : section.groups())
        titles.append(group->title());
    EXPECT_EQ(titles, (QStringList{u"Windows"_s, u"Widgets"_s, u"Look"_s}));
    const std::pair<QString, Setting<bool>*> switches[] = {{u"Lock Widget Positions"_s, &settings.locked},
        {u"Click a widget to open its app"_s, &settings.clickToOpen}, {u"Scene decorations"_s, &settings.showScene},
        {u"Animations"_s, &settings.animations}};
    for (const auto& [name, setting] : switches) {
        SCOPED_TRACE(name.toStdString());
        changed.clear();
        auto* box = qobject_cast<QCheckBox*>(row(section, name).control());
        const bool before = (*setting)();
        EXPECT_EQ(box->isChecked(), before);
        row(section, name).work();
        EXPECT_EQ((*setting)(), !before);
        setting->set(before);
        EXPECT_EQ(box->isChecked(), before) << "changed elsewhere";
        EXPECT_EQ(changed, (QStringList{setting->key(), setting->key()}));
    }
    changed.clear();
    auto* layer = qobject_cast<QComboBox*>(row(section, u"Widgets stand"_s).control());
    layer->setCurrentText(u"Floating (above windows)"_s);
    EXPECT_EQ(settings.layer(), WidgetLayer::floating);
    SettingsRow& overlap = row(section, u"When a window covers a floating widget"_s);
    auto* segments = qobject_cast<Segments*>(overlap.control());
    EXPECT_EQ(segments->chosen(), 1);
    segments->findChildren<Segment*>().last()->click();
    EXPECT_EQ(settings.overlap(), OverlapBehavior::hide);
    EXPECT_EQ(overlap.text().caption, u"It comes back when the window moves away"_s);
    settings.overlap.set(OverlapBehavior::show);
    EXPECT_EQ(segments->chosen(), 0);
    EXPECT_EQ(overlap.text().caption, u"It stays on top"_s);
    EXPECT_EQ(changed, (QStringList{u"layer"_s, u"overlap"_s, u"overlap"_s}));
    row(section, u"Arrange widgets"_s).work();
    EXPECT_EQ(edits, 1);
}

TEST_F(SettingsRowTest, OverlapSaysSoWhereNobodyTellsWhatCoversAWidget)
{
    DesktopSection section(settings, u"Nobody tells."_s, [] {});
    const SettingsRow& overlap = row(section, u"When a window covers a floating widget"_s);
    EXPECT_EQ(overlap.text().caption, u"Nobody tells."_s);
    settings.overlap.set(OverlapBehavior::hide);
    EXPECT_EQ(overlap.text().caption, u"Nobody tells."_s);
}

TEST_F(SettingsRowTest, AValueNobodyOffersIsShownAndKept)
{
    settings.downloadResetMinutes.set(45);
    settings.focusMinutes.set(500);
    changed.clear();
    SettingsSection section(settings);
    section.addChoice<int>({.name = u"Restart"_s}, settings.downloadResetMinutes, {{0, u"Never"_s}, {60, u"Hourly"_s}},
        [](const int& minutes) { return u"Every %1 minutes"_s.arg(minutes); });
    section.addNumber({.name = u"Focus"_s}, settings.focusMinutes, {1, 180, u"%1 min"_s});
    auto* box = section.findChild<QComboBox*>();
    EXPECT_EQ(box->currentText(), u"Every 45 minutes"_s);
    EXPECT_TRUE(changed.isEmpty()) << "showing a value wrote one";
    auto* number = section.findChild<NumberField*>();
    for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
        QFocusEvent passing(type, Qt::TabFocusReason);
        QCoreApplication::sendEvent(number, &passing);
    }
    EXPECT_EQ(settings.focusMinutes(), 500) << "passing by changed it";
    press(number, Qt::Key_Return);
    EXPECT_EQ(settings.focusMinutes(), 180) << "what was confirmed is not what counts";
    settings.downloadResetMinutes.set(7);
    EXPECT_EQ(box->currentText(), u"Every 7 minutes"_s);
    box->setCurrentText(u"Hourly"_s);
    EXPECT_EQ(settings.downloadResetMinutes(), 60);
    EXPECT_EQ(box->count(), 2) << "the other value is still offered";
}

TEST_F(SettingsRowTest, NumbersAreTakenWhenTheyAreWhole)
{
    SettingsSection section(settings);
    section.addNumber(
        {.name = u"Focus"_s, .spoken = u"Focus, minutes"_s}, settings.focusMinutes, {1, 180, u"%1 min"_s});
    auto* number = section.findChild<NumberField*>();
    EXPECT_EQ(number->text(), u"25 min"_s);
    auto* entry = number->findChild<QLineEdit*>();
    entry->selectAll();
    for (const QChar digit : u"45"_s)
        press(number, 0, digit);
    EXPECT_EQ(settings.focusMinutes(), 25) << "4 minutes are not meant";
    press(number, Qt::Key_Return);
    EXPECT_EQ(settings.focusMinutes(), 45);
    press(number, Qt::Key_Up);
    EXPECT_EQ(settings.focusMinutes(), 46);
    QWheelEvent wheel({}, {}, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(number, &wheel);
    EXPECT_EQ(settings.focusMinutes(), 46) << "the page was to be scrolled";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(number)->text(QAccessible::Name), u"Focus, minutes"_s);
}

TEST_F(SettingsRowTest, ATextIsStoredTrimmedByItsButtonOrEnter)
{
    SettingsSection section(settings);
    section.addText({.name = u"City"_s, .caption = u"Ready"_s}, settings.weatherCity, u"Your location"_s, u"Save"_s);
    auto* entry = section.findChild<TextEntry*>();
    EXPECT_FALSE(entry->button()->isEnabled());
    entry->field()->setText(u"  Bergen "_s);
    EXPECT_EQ(settings.weatherCity(), QString()) << "nobody said so yet";
    entry->button()->click();
    EXPECT_EQ(settings.weatherCity(), u"Bergen"_s);
    EXPECT_FALSE(entry->button()->isEnabled());
    entry->field()->setText(u"Os"_s);
    settings.weatherCity.set(u"Rome"_s);
    EXPECT_EQ(entry->field()->text(), u"Os"_s) << "what is being typed is lost";
    entry->field()->setText(u"Rome"_s);
    settings.weatherCity.set(u"Paris"_s);
    EXPECT_EQ(entry->field()->text(), u"Paris"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(entry->field())->text(QAccessible::Name), u"City"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(entry->field())->text(QAccessible::Description), u"Ready"_s);
}

TEST_F(SettingsRowTest, WhatIsUnavailableDoesNothingAndSaysWhy)
{
    SettingsSection section(settings);
    SettingsRow* row = section.addSwitch({.name = u"Lock"_s}, settings.locked);
    row->setUnavailable(u"Not on this desktop"_s);
    row->work();
    EXPECT_FALSE(settings.locked());
    EXPECT_EQ(row->control()->toolTip(), u"Not on this desktop"_s);
    row->setUnavailable({});
    row->work();
    EXPECT_TRUE(settings.locked());
}

} // namespace
} // namespace ambrelle
