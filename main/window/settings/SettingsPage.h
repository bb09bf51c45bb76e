// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/MainWindowModel.h"
#include "window/frame/Page.h"
#include "window/frame/WindowContext.h"

#include <map>

namespace ambrelle {

class CalendarsSection;
class SettingsColumn;
class SettingsList;
class SettingsSection;
class WeatherSection;

/// The settings: their sections at the left, the chosen one beside them, or what was found in all of them.
class SettingsPage final : public Page {
    Q_OBJECT
public:
    explicit SettingsPage(const WindowContext& context);

    void takeFocus(bool first) override;
    QList<QWidget*> areas() override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString whyNeverCovered() const;
    SettingsSection* makeSection(SettingsChapter chapter);
    SettingsSection& section(SettingsChapter chapter);
    void showModel();
    void showChapter(SettingsChapter chapter);
    void showFound(const QString& search);
    void answerCityRequest();
    void openCalendars();
    void showNews();
    void arrange();

    WindowContext m_with;
    SettingsList* m_list;
    SettingsColumn* m_column;
    std::map<SettingsChapter, SettingsSection*> m_sections; // made when they are first shown
    WeatherSection* m_weather = nullptr;
    CalendarsSection* m_calendars = nullptr;
    bool m_searching = false;
};

} // namespace ambrelle
