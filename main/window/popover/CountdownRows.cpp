// SPDX-License-Identifier: MIT

#include "window/popover/KindRows.h"

#include "foundation/Clock.h"
#include "foundation/Wording.h"
#include "window/popover/DateField.h"
#include "window/popover/SettingsForm.h"

#include <QLineEdit>
#include <QTimeZone>

namespace ambrelle {

namespace {

constexpr int daysAhead = 7; // of the date offered first
constexpr int longestTitle = 200;

void addTitle(SettingsForm& form)
{
    auto* title = new QLineEdit;
    title->setMaxLength(longestTitle);
    title->setPlaceholderText(Wording::tr("What you look forward to"));
    form.addRow(Wording::tr("Title"), title, [title](const WidgetConfig& config) {
        if (const QString text = config.countdownTitle.value_or(QString()); text != title->text())
            title->setText(text);
    });
    QObject::connect(title, &QLineEdit::textEdited, &form, [&form](const QString& text) {
        form.change(
            [&](WidgetConfig& config) { config.countdownTitle = text.isEmpty() ? std::nullopt : std::optional(text); });
    });
}

} // namespace

void addCountdownRows(SettingsForm& form, const Clock& clock)
{
    addTitle(form);
    auto* date = new DateField(Wording::tr("Pick a Date"),
        [&clock] { return clock.now().date().addDays(daysAhead).startOfDay(clock.now().timeZone()); });
    form.addRow(
        Wording::tr("Date"), date, [date](const WidgetConfig& config) { date->setMoment(config.countdownDate); });
    QObject::connect(date, &DateField::chose, &form, [&form, &clock](const std::optional<QDateTime>& moment) {
        form.change([&](WidgetConfig& config) {
            // Its progress counts from the day on which the date was picked.
            if (moment && !config.countdownDate && !config.countdownStart)
                config.countdownStart = clock.now();
            config.countdownDate = moment;
        });
    });
    auto* start = new DateField(Wording::tr("Start Now"), [&clock] { return clock.now(); });
    form.addRow(
        Wording::tr("Start"), start, [start](const WidgetConfig& config) { start->setMoment(config.countdownStart); });
    QObject::connect(start, &DateField::chose, &form, [&form](const std::optional<QDateTime>& moment) {
        form.change([&](WidgetConfig& config) { config.countdownStart = moment; });
    });
}

} // namespace ambrelle
