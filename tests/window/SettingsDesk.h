// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/Button.h"
#include "window/settings/SettingsPage.h"
#include "window/settings/SettingsSection.h"
#include "window/WindowDesk.h"

#include <QComboBox>

namespace ambrelle {

/// The Settings tab of a window, with what it changed.
struct SettingsDesk : WindowTest {
    QStringList changed;
    AppSettings& settings = home.desk.settings;

    explicit SettingsDesk(Updater::Trust trust = {})
        : WindowTest(std::move(trust))
    {
        QObject::connect(&settings, &AppSettings::changed, &settings, [this](const QString& key) { changed += key; });
    }

    SettingsPage& page(SettingsChapter chapter)
    {
        home.model.setSettingsChapter(chapter);
        return *opened(MainTab::settings).findChild<SettingsPage*>();
    }
    /// Those that are seen, in their order.
    static QList<SettingsRow*> rows(const QWidget& page)
    {
        QList<SettingsRow*> seen;
        for (SettingsRow* row : page.findChildren<SettingsRow*>()) {
            if (row->isVisible())
                seen.append(row);
        }
        std::ranges::sort(seen, {}, [](const SettingsRow* row) { return row->mapTo(row->window(), QPoint()).y(); });
        return seen;
    }
    static QStringList names(const QWidget& page)
    {
        QStringList names;
        for (const SettingsRow* row : rows(page))
            names.append(row->text().name);
        return names;
    }
    static SettingsRow& row(const QWidget& page, const QString& name)
    {
        for (SettingsRow* row : rows(page)) {
            if (row->text().name == name)
                return *row;
        }
        throw std::runtime_error("no row " + name.toStdString() + ", only " + names(page).join(u", "_s).toStdString());
    }
    static Button& button(const QWidget& within, const QString& title)
    {
        for (Button* button : within.findChildren<Button*>()) {
            if (button->title() == title)
                return *button;
        }
        throw std::runtime_error("no button " + title.toStdString());
    }
    template <typename T> static T& control(const QWidget& page, const QString& name)
    {
        return *qobject_cast<T*>(row(page, name).control());
    }
    /// What a choice of `title` stores; the row shows it as `title`, too, when somebody else stores it.
    template <typename T>
    void expectChoice(QWidget& page, const QString& name, Setting<T>& setting, const QString& title, const T& value)
    {
        SCOPED_TRACE((name + u": "_s + title).toStdString());
        auto& box = control<QComboBox>(page, name);
        const T before = setting();
        changed.clear();
        box.setCurrentText(title);
        EXPECT_EQ(setting(), value);
        EXPECT_EQ(changed, QStringList{setting.key()});
        setting.set(before);
        setting.set(value);
        EXPECT_EQ(box.currentText(), title);
    }
};

} // namespace ambrelle
