// SPDX-License-Identifier: MIT

#include "window/themes/ThemesPage.h"

#include "desktop/ActionItem.h"
#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "window/cards/CardView.h"
#include "window/look/ActionMenu.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/look/Measures.h"
#include "window/themes/PageTransition.h"
#include "window/themes/ThemeActions.h"
#include "window/themes/ThemePage.h"
#include "window/themes/ThemePicture.h"
#include "window/themes/ThemesScope.h"
#include "window/themes/Welcome.h"

#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace ambrelle {

using namespace Qt::StringLiterals;

ThemesPage::ThemesPage(const WindowContext& context)
    : m_with(context)
    , m_themes(context)
    , m_files(context.themeActions, *this)
    , m_scope(new ThemesScope(context, m_themes))
    , m_grid(new CardView)
    , m_empty(new EmptyState)
    , m_overview(makeOverview())
    , m_pages(new QStackedLayout(this))
    , m_transition(new PageTransition(*this))
{
    m_pages->addWidget(m_overview);
    connect(m_scope, &ThemesScope::importWanted, this, [this] { m_files.import(); });
    connectGrid();
    makeKeys();
    connect(&m_with.model, &MainWindowModel::changed, this, &ThemesPage::showModel);
    connect(&m_with.manager, &WidgetManager::controllersChanged, this, &ThemesPage::showEmptyState);
    showModel();
}

QWidget* ThemesPage::makeOverview()
{
    auto* overview = new QWidget;
    auto* column = new QVBoxLayout(overview);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scope);
    column->addWidget(m_grid, 1);
    column->addWidget(m_empty, 1);
    connect(m_empty, &EmptyState::cleared, this, [this] { m_with.model.setSearch(MainTab::themes, {}); });
    connect(m_empty, &EmptyState::widened, this, [this] { m_with.model.setThemesSection(ThemesSection::all); });
    m_grid->setAccessibleName(Wording::tr("Themes"));
    m_grid->setPictures(new ShelfPictures(m_with.shelf, *m_grid));
    return overview;
}

void ThemesPage::connectGrid()
{
    // Before the view hears of it: what goes must not take the choice along.
    connect(&m_themes, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { m_isChanging = true; });
    connect(&m_themes, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] { m_isChanging = true; });
    m_grid->setModel(&m_themes);
    const auto changed = [this] {
        m_isChanging = false;
        showChosen();
        showEmptyState();
    };
    connect(&m_themes, &QAbstractItemModel::rowsRemoved, this, changed);
    connect(&m_themes, &QAbstractItemModel::rowsInserted, this, changed);
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentChanged, this, &ThemesPage::choose);
    connect(m_grid, &CardView::activated, this, [this](const QModelIndex& index) {
        if (const std::optional<ThemeChoice> theme = m_themes.themeAt(index))
            m_with.model.openTheme(*theme);
    });
    connect(m_grid, &CardView::primaryPressed, this, [this](const QModelIndex& index) {
        if (const std::optional<ThemeChoice> theme = m_themes.themeAt(index))
            m_with.themeActions.applyFromCard(*theme);
    });
    connect(m_grid, &CardView::removeRequested, this, [this] {
        if (const QUuid* own = chosenOwn())
            m_with.themeActions.remove(*own);
    });
    connect(m_grid, &CardView::menuRequested, this, &ThemesPage::openMenu);
}

void ThemesPage::makeKeys()
{
    auto* exporting = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_E), this);
    exporting->setContext(Qt::WindowShortcut);
    connect(exporting, &QShortcut::activated, this, [this] {
        if (const QUuid* own = chosenOwn())
            m_files.exportTheme(*own);
    });
}

/// The chosen theme if the user saved it.
const QUuid* ThemesPage::chosenOwn() const
{
    const std::optional<ThemeChoice>& chosen = m_with.model.chosenTheme();
    return chosen ? std::get_if<QUuid>(&*chosen) : nullptr;
}

void ThemesPage::choose(const QModelIndex& index)
{
    if (!m_isChanging)
        m_with.model.chooseTheme(m_themes.themeAt(index));
}

void ThemesPage::showModel()
{
    showWelcome();
    if (m_with.model.isThemeOpen())
        page(); // which closes it when somebody deleted it
    const bool open = m_with.model.isThemeOpen();
    turnTo(open ? page() : *m_overview);
    showChosen();
    showEmptyState();
    if (m_wasOpen != open && isVisible())
        takeFocus(false);
    m_wasOpen = open;
}

ThemePage& ThemesPage::page()
{
    if (!m_page) {
        m_page = new ThemePage(m_with, m_themes);
        m_pages->addWidget(m_page);
        connect(m_transition, &PageTransition::ended, m_page, [this] { m_page->picture().setHeldBack(false); });
    }
    return *m_page;
}

void ThemesPage::showWelcome()
{
    if (m_with.model.showsWelcome() == (m_welcome != nullptr))
        return;
    if (!m_welcome) {
        m_welcome = new Welcome(m_with);
        m_welcome->setWide(width() >= measures::wideWindow);
        m_grid->setHeader(m_welcome);
        QWidget* before = m_scope;
        for (Button* button : m_welcome->findChildren<Button*>()) {
            if (before != m_scope)
                setTabOrder(before, button);
            before = button;
        }
        setTabOrder(before, m_grid); // it stands above the grid
    } else {
        m_welcome->hide();
        m_welcome->deleteLater(); // it may be its own button that was pressed
        m_welcome = nullptr;
    }
}

void ThemesPage::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    if (m_welcome)
        m_welcome->setWide(width() >= measures::wideWindow);
}

void ThemesPage::showChosen()
{
    if (m_isChanging)
        return;
    const std::optional<ThemeChoice>& chosen = m_with.model.chosenTheme();
    const QModelIndex index = chosen ? m_themes.indexOf(*chosen) : QModelIndex();
    if (m_grid->currentIndex() == index)
        return;
    m_isChanging = true;
    if (index.isValid())
        m_grid->choose(index);
    else
        m_grid->selectionModel()->clear();
    m_isChanging = false;
}

void ThemesPage::showEmptyState()
{
    const bool empty = m_themes.rowCount() == 0;
    m_grid->setVisible(!empty);
    m_empty->setVisible(empty);
    const QString search = m_with.model.search(MainTab::themes).trimmed();
    const bool elsewhere = empty && m_themes.hasHitsElsewhere();
    const bool canSave = m_with.themeActions.canSave();
    const QString emptiness = empty ? u"%1 %2 %3"_s.arg(elsewhere).arg(canSave).arg(search) : QString();
    if (std::exchange(m_emptiness, emptiness) == emptiness || !empty)
        return;
    if (search.isEmpty()) {
        m_empty->setTexts(u"rectangle.on.rectangle.angled"_s, Wording::tr("No saved desktops yet"),
            Wording::tr("Arrange your widgets, then keep the whole desktop as a theme"));
        auto* save = new Button(Wording::tr("Save Current Desktop"), Button::Kind::primary);
        save->setEnabled(canSave);
        save->setToolTip(canSave ? QString() : Wording::tr("There are no widgets to save"));
        auto* import = new Button(Wording::tr("Import…"));
        connect(save, &Button::clicked, this, [this] { m_with.themeActions.saveDesktop(); });
        connect(import, &Button::clicked, this, [this] { m_files.import(); });
        m_empty->setButtons({save, import});
        return;
    }
    m_empty->setSearch(Wording::tr("No themes match “%1”").arg(search), elsewhere);
}

void ThemesPage::takeFocus(bool first)
{
    const bool seeksFound = first && !m_with.model.search(MainTab::themes).trimmed().isEmpty();
    if (m_with.model.isThemeOpen() && seeksFound)
        m_with.model.closeTheme(); // what was found is in the grid
    if (m_with.model.isThemeOpen()) {
        page().takeFocus();
        return;
    }
    if (m_empty->isVisibleTo(this)) {
        m_empty->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    m_grid->setFocus(Qt::ShortcutFocusReason);
    const QList<ThemeChoice> themes = m_themes.themes();
    if (!themes.isEmpty() && (first || !m_grid->currentIndex().isValid()))
        m_grid->choose(m_themes.indexOf(themes.first()));
}

QList<QWidget*> ThemesPage::areas()
{
    return m_with.model.isThemeOpen() ? page().areas() : QList<QWidget*>{m_scope, m_grid, m_empty};
}

void ThemesPage::openMenu(const QModelIndex& index, const QPoint& globalPosition)
{
    const std::optional<ThemeChoice> theme = m_themes.themeAt(index);
    if (theme)
        ActionMenu::openFor(*this, globalPosition, [this, theme = *theme] { return menuOf(theme); });
}

QList<ActionItem> ThemesPage::menuOf(const ThemeChoice& theme)
{
    ThemeActions& actions = m_with.themeActions;
    const bool isWorking = actions.working() && actions.working()->theme == theme;
    const bool hasWallpaper = actions.wallpaperOf(theme).has_value() && !isWorking;
    QList<ActionItem> items{{.title = Wording::tr("Open"), .handler = [this, theme] { m_with.model.openTheme(theme); }},
        ActionItem::separator(),
        {.title = ThemeActions::title(ThemeOperation::applyWithWallpaper),
            .handler = [&actions, theme] { actions.apply(theme, true); },
            .enabled = hasWallpaper},
        {.title = ThemeActions::title(ThemeOperation::applyKeepingWallpaper),
            .handler = [&actions, theme] { actions.apply(theme, false); },
            .enabled = !isWorking},
        {.title = ThemeActions::title(ThemeOperation::setWallpaper),
            .handler = [&actions, theme] { actions.setWallpaper(theme); },
            .enabled = hasWallpaper}};
    if (const QUuid* own = std::get_if<QUuid>(&theme)) {
        items += {ActionItem::separator(),
            {.title = Wording::tr("Rename"),
                .symbol = u"pencil"_s,
                .key = QKeySequence(Qt::Key_F2),
                .handler = [this, theme] { m_grid->edit(m_themes.indexOf(theme)); }},
            {.title = Wording::tr("Export…"),
                .symbol = u"square.and.arrow.up"_s,
                .key = QKeySequence(Qt::CTRL | Qt::Key_E),
                .handler = [this, id = *own] { m_files.exportTheme(id); }},
            {.title = Wording::tr("Delete…"),
                .symbol = u"trash"_s,
                .key = QKeySequence(Qt::Key_Delete),
                .handler = [&actions, id = *own] { actions.remove(id); }}};
    }
    return items;
}

} // namespace ambrelle
