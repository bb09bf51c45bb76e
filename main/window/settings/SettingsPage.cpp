// SPDX-License-Identifier: MIT

#include "window/settings/SettingsPage.h"

#include "desktop/QuickMenu.h"
#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "platform/WindowHost.h"
#include "platform/WindowList.h"
#include "services/LiveServices.h"
#include "updates/Updater.h"
#include "window/frame/SearchWords.h"
#include "window/look/AppLook.h"
#include "window/look/Measures.h"
#include "window/settings/AboutSection.h"
#include "window/settings/CalendarsSection.h"
#include "window/settings/DesktopSection.h"
#include "window/settings/FocusSection.h"
#include "window/settings/GeneralSection.h"
#include "window/settings/SettingsColumn.h"
#include "window/settings/SettingsList.h"
#include "window/settings/UpdatesSection.h"
#include "window/settings/WeatherSection.h"

#include <QBoxLayout>
#include <QPainter>

#include <utility>

namespace ambrelle {

namespace {

constexpr int wideList = 192;
constexpr int narrowList = 160;
constexpr int wideMargins = 16; // around the list
constexpr int narrowMargins = 12;
constexpr int listTop = 20;
constexpr int lastChapter = static_cast<int>(SettingsChapter::about);

} // namespace

SettingsPage::SettingsPage(const WindowContext& context)
    : m_with(context)
    , m_list(new SettingsList)
    , m_column(new SettingsColumn)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_list);
    row->addWidget(m_column, 1);
    arrange();
    connect(m_list, &SettingsList::chose, this, [this](SettingsChapter chapter) {
        m_with.model.setSearch(MainTab::settings, {});
        m_with.model.setSettingsChapter(chapter);
    });
    connect(m_column, &SettingsColumn::searchCleared, this, [this] { m_with.model.setSearch(MainTab::settings, {}); });
    connect(&m_with.model, &MainWindowModel::changed, this, &SettingsPage::showModel);
    connect(&AppLook::shared(), &AppLook::changed, this, &SettingsPage::arrange);
    connect(&m_with.updater, &Updater::changed, this, &SettingsPage::showNews);
    showModel();
}

/// Where there is a desktop, but nobody tells what is on it.
QString SettingsPage::whyNeverCovered() const
{
    const bool isUnknown = m_with.host.isAvailable() && !m_with.otherWindows.isAvailable();
    return isUnknown ? m_with.otherWindows.whyNot() : QString();
}

SettingsSection* SettingsPage::makeSection(SettingsChapter chapter)
{
    switch (chapter) {
    case SettingsChapter::general: return new GeneralSection(m_with);
    case SettingsChapter::desktop:
        return new DesktopSection(
            m_with.settings, whyNeverCovered(), [&manager = m_with.manager] { manager.setEditing(true); });
    case SettingsChapter::weather: return m_weather = new WeatherSection(m_with.settings, m_with.services.weather);
    case SettingsChapter::calendars:
        return m_calendars =
                   new CalendarsSection({m_with.settings, m_with.services.events, m_with.programs, m_with.undo});
    case SettingsChapter::focus: return new FocusSection(m_with);
    case SettingsChapter::updates: return new UpdatesSection(m_with);
    case SettingsChapter::about: return new AboutSection(m_with);
    }
    return nullptr;
}

SettingsSection& SettingsPage::section(SettingsChapter chapter)
{
    SettingsSection*& section = m_sections[chapter];
    if (!section) {
        section = makeSection(chapter);
        m_column->insert(static_cast<int>(chapter), section, title(chapter));
        connect(section, &SettingsSection::remade, this, [this] {
            const QString search = m_with.model.search(MainTab::settings);
            if (m_searching && !SearchWords(search).isEmpty())
                showFound(search);
        });
    }
    return *section;
}

void SettingsPage::showModel()
{
    const QString search = m_with.model.search(MainTab::settings);
    m_list->setChosen(m_with.model.settingsChapter());
    if (SearchWords(search).isEmpty())
        showChapter(m_with.model.settingsChapter());
    else {
        showFound(search);
        m_column->toTop();
    }
    answerCityRequest();
    openCalendars();
}

void SettingsPage::showChapter(SettingsChapter chapter)
{
    SettingsSection& chosen = section(chapter);
    const bool changes = chosen.isHidden();
    m_list->setFound({});
    m_column->setNothing({});
    for (const auto& [each, section] : m_sections) {
        if (each != chapter)
            m_column->showSection(section, false, false);
    }
    chosen.showFound({}, {});
    m_column->showSection(&chosen, true, false);
    if (changes || std::exchange(m_searching, false))
        m_column->toTop();
}

void SettingsPage::showFound(const QString& search)
{
    const SearchWords words(search);
    QSet<SettingsChapter> found;
    for (int index = 0; index <= lastChapter; ++index) {
        const auto chapter = static_cast<SettingsChapter>(index);
        SettingsSection& each = section(chapter);
        const bool hits = each.showFound(words, title(chapter)) > 0;
        if (hits)
            found.insert(chapter);
        m_column->showSection(&each, hits, true);
    }
    m_searching = true;
    m_list->setFound(found);
    m_column->orderTabs();
    m_column->setNothing(found.isEmpty() ? Wording::tr("No settings match “%1”").arg(search.trimmed()) : QString());
}

void SettingsPage::answerCityRequest()
{
    if (isVisible() && m_weather && m_with.model.takeCityRequest())
        m_weather->typeCity();
}

/// A search that finds them among others is no reason to read the calendars.
void SettingsPage::openCalendars()
{
    if (isVisible() && m_calendars && m_with.model.settingsChapter() == SettingsChapter::calendars
        && SearchWords(m_with.model.search(MainTab::settings)).isEmpty())
        m_calendars->open();
}

void SettingsPage::showNews()
{
    const auto found = m_with.updater.isEnabled() ? m_with.updater.available() : std::nullopt;
    m_list->setNews(SettingsChapter::updates, found ? QuickMenu::updateTitle(found->version) : QString());
}

void SettingsPage::takeFocus(bool)
{
    if (SearchWords(m_with.model.search(MainTab::settings)).isEmpty() || !m_column->focusFirst())
        m_list->setFocus(Qt::ShortcutFocusReason);
}

QList<QWidget*> SettingsPage::areas()
{
    return {m_list, m_column};
}

void SettingsPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    showNews();
    answerCityRequest();
    openCalendars();
}

void SettingsPage::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    arrange();
}

void SettingsPage::arrange()
{
    const bool wide = width() >= measures::wideWindow;
    const int side = wide ? wideMargins : narrowMargins;
    m_list->setFixedWidth(AppLook::shared().scaled(wide ? wideList : narrowList) + 2 * side);
    m_list->setMargins(side, listTop);
    update();
}

void SettingsPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const double line = hairline(devicePixelRatioF());
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const double x = mirrored ? m_list->x() : m_list->geometry().right() + 1 - line;
    painter.fillRect(QRectF(x, 0, line, height()), AppLook::shared().colours().hairline);
}

} // namespace ambrelle
