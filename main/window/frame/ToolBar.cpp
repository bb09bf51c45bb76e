// SPDX-License-Identifier: MIT

#include "window/frame/ToolBar.h"

#include "foundation/Wording.h"
#include "window/frame/MainWindowModel.h"
#include "window/frame/SearchField.h"
#include "window/frame/TabStrip.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/Measures.h"
#include "window/look/SymbolIcon.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int barHeight = 56;
constexpr int barControlHeight = 32;
constexpr int barGap = 8;
constexpr int wideSearch = 212;
constexpr int narrowSearch = 168;

QString symbolOf(MainTab tab)
{
    switch (tab) {
    case MainTab::themes: return u"rectangle.on.rectangle.angled"_s;
    case MainTab::widgets: return u"square.grid.2x2.fill"_s;
    case MainTab::wallpapers: return u"photo"_s;
    case MainTab::settings: return u"gearshape"_s;
    }
    return {};
}

QString searchPrompt(MainTab tab)
{
    switch (tab) {
    case MainTab::themes: return Wording::tr("Search Themes");
    case MainTab::widgets: return Wording::tr("Search Widgets");
    case MainTab::wallpapers: return Wording::tr("Search Wallpapers");
    case MainTab::settings: return Wording::tr("Search Settings");
    }
    return {};
}

} // namespace

ToolBar::ToolBar(MainWindowModel& model, ActionMenu::Items more, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_menu(std::move(more))
    , m_back(new Button(title(MainTab::themes), Button::Kind::quiet, this))
    , m_tabs(new TabStrip(this))
    , m_openSearch(Button::symbolOnly(u"magnifyingglass"_s, Wording::tr("Search")))
    , m_search(new SearchField(this))
    , m_more(Button::symbolOnly(u"ellipsis"_s, Wording::tr("More")))
{
    m_back->setAccessibleName(Wording::tr("Back to Themes"));
    m_openSearch->setParent(this);
    m_more->setParent(this);
    m_menu.setParent(this, m_menu.windowFlags());
    makeTabs();
    m_search->installEventFilter(this);
    connect(m_back, &QPushButton::clicked, this, [this] { m_model.closeTheme(); });
    connect(m_openSearch, &QPushButton::clicked, this, &ToolBar::search);
    connect(m_more, &QPushButton::clicked, this, &ToolBar::openMenu);
    connect(&m_menu, &QMenu::aboutToHide, m_more, [this] { m_more->setDown(false); });
    connect(
        m_search, &SearchField::typed, this, [this](const QString& text) { m_model.setSearch(m_model.tab(), text); });
    connect(m_search, &SearchField::leftDownwards, this, &ToolBar::leftDownwards);
    connect(m_search, &SearchField::entered, this, &ToolBar::searchEntered);
    connect(&m_model, &MainWindowModel::changed, this, &ToolBar::showModel);
    connect(&AppLook::shared(), &AppLook::changed, this, &ToolBar::arrange);
    showModel();
}

void ToolBar::makeTabs()
{
    m_tabs->setAccessibleName(Wording::tr("Tabs"));
    for (const MainTab tab : allCases<MainTab>())
        m_tabs->addTab(symbolIcon(symbolOf(tab)), title(tab));
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) { m_model.setTab(static_cast<MainTab>(index)); });
}

void ToolBar::showModel()
{
    const MainTab tab = m_model.tab();
    m_tabs->setCurrentIndex(static_cast<int>(tab));
    m_search->setWhat(searchPrompt(tab), m_model.search(tab));
    m_back->setVisible(tab == MainTab::themes && m_model.isThemeOpen());
    arrange();
}

void ToolBar::takeFocus()
{
    if (m_tabs->isHidden()) // under the search
        search();
    else
        m_tabs->setFocus(Qt::ShortcutFocusReason);
}

void ToolBar::search()
{
    m_search->show(); // what is hidden takes no focus
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void ToolBar::openMenu()
{
    m_more->setDown(true);
    const int end = isRightToLeft() ? 0 : m_more->width();
    // Not exec(): the window may be closed, and be gone, before the menu is.
    m_menu.openAt(m_more->mapToGlobal(QPoint(end, m_more->height() + barGap / 2)), ActionMenu::Corner::topEnd);
}

void ToolBar::setNews(const QString& news)
{
    m_more->setNews(news);
}

bool ToolBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        QMetaObject::invokeMethod(this, &ToolBar::arrange, Qt::QueuedConnection); // it has it, or not, only afterwards
    return QWidget::eventFilter(watched, event);
}

void ToolBar::resizeEvent(QResizeEvent*)
{
    arrange();
}

void ToolBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
}

/// By hand: the tabs stand in the middle of the window, not of what the other controls leave.
void ToolBar::arrange()
{
    const AppLook& look = AppLook::shared();
    m_back->setSymbol(isRightToLeft() ? u"chevron.right"_s : u"chevron.left"_s);
    setFixedHeight(look.scaled(barHeight));
    const int side = look.scaled(barControlHeight);
    const bool wide = width() >= measures::wideWindow; // the tabs stand in the middle
    const bool folded = width() < measures::foldedWindow; // the search is a button
    const int margin = measures::margin(width());
    const int top = (height() - side) / 2;
    const bool folds = folded && !m_search->hasFocus() && m_model.search(m_model.tab()).isEmpty();
    const auto place = [this](QWidget* widget, int x, int y, QSize size) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), {QPoint(x, y), size}));
    };
    int right = width() - margin - side;
    place(m_more, right, top, {side, side});
    const int search = wide ? wideSearch : narrowSearch;
    m_openSearch->setVisible(folds);
    m_search->setVisible(!folds);
    if (folds) {
        right -= barGap + side;
        place(m_openSearch, right, top, {side, side});
    } else {
        right -= barGap + search;
        place(m_search, right, top, {search, side});
    }
    int left = margin;
    if (!m_back->isHidden()) {
        m_back->setText(wide ? title(MainTab::themes) : QString());
        const int back = wide ? m_back->sizeHint().width() : side;
        place(m_back, left, top, {back, side});
        left += back + barGap;
    }
    const int room = right - barGap - left;
    const bool over = folded && !folds; // the search stands over the tabs
    m_tabs->setVisible(!over);
    if (over)
        place(m_search, left, top, {width() - margin - side - barGap - left, side});
    m_tabs->setCompact(m_tabs->fullWidth() > room);
    const QSize size = m_tabs->sizeHint();
    // In the middle of the window, or as near to it as the search lets them.
    const int x =
        wide ? std::clamp((width() - size.width()) / 2, left, std::max(left, left + room - size.width())) : left;
    place(m_tabs, x, (height() - size.height()) / 2, size);
    update();
}

void ToolBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const AppColours& colours = AppLook::shared().colours();
    const double line = hairline(devicePixelRatioF());
    painter.fillRect(QRectF(0, height() - line, width(), line), colours.hairline);
}

} // namespace ambrelle
