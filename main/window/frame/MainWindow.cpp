// SPDX-License-Identifier: MIT

#include "window/frame/MainWindow.h"

#include "window/frame/DropFrame.h"
#include "window/frame/Page.h"
#include "window/frame/ToolBar.h"
#include "window/look/SymbolIcon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int tabCount = static_cast<int>(allCases<MainTab>().size());

/// Paths of the files that are dragged, none when anything else is.
QStringList filesIn(const QMimeData& dragged)
{
    QStringList files;
    for (const QUrl& url : dragged.urls()) {
        if (!url.isLocalFile())
            return {};
        files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

MainWindow::MainWindow(const Parts& parts)
    : m_parts(parts)
    , m_toolBar(new ToolBar(parts.model, parts.more))
    , m_stack(new QStackedWidget)
    , m_dropFrame(new DropFrame(this))
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_toolBar);
    rows->addWidget(m_stack, 1);
    setWindowIcon(programIcon());
    setWindowTitle(u"Ambrelle"_s);
    setAcceptDrops(true);
    makeShortcuts();
    connect(m_toolBar, &ToolBar::leftDownwards, this, [this] { page().takeFocus(true); });
    connect(m_toolBar, &ToolBar::searchEntered, this, [this] {
        // Nothing happens to the desktop before the user has seen what was found.
        if (!m_parts.model.search(m_parts.model.tab()).trimmed().isEmpty())
            page().takeFocus(true);
    });
    connect(&m_parts.model, &MainWindowModel::changed, this, &MainWindow::showModel);
    showModel();
}

void MainWindow::addKey(const QKeySequence& key, const std::function<void()>& act)
{
    const auto* shortcut = new QShortcut(key, this);
    connect(shortcut, &QShortcut::activated, this, act);
}

void MainWindow::setNews(const QString& news)
{
    m_toolBar->setNews(news);
}

void MainWindow::makeShortcuts()
{
    for (int index = 0; index < tabCount; ++index)
        addKey(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)),
            [this, index] { m_parts.model.setTab(static_cast<MainTab>(index)); });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_Comma), [this] { m_parts.model.setTab(MainTab::settings); });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_Tab), [this] { nextTab(1); });
    addKey(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), [this] { nextTab(-1); });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { m_toolBar->search(); });
    addKey(QKeySequence(Qt::Key_F10), [this] { m_toolBar->openMenu(); });
    addKey(QKeySequence(Qt::Key_F6), [this] { nextArea(); });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_Z), [this] {
        if (undo)
            undo();
    });
    // Towards where one came from, as the arrow of the tool bar points.
    for (const auto& [key, direction] :
        {std::pair(Qt::Key_Left, Qt::LeftToRight), std::pair(Qt::Key_Right, Qt::RightToLeft)})
        addKey(QKeySequence(Qt::ALT | key), [this, direction] {
            if (layoutDirection() == direction)
                m_parts.model.closeTheme();
        });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_W), [this] { close(); });
    addKey(QKeySequence(Qt::Key_Escape), [this] { escape(); });
}

void MainWindow::nextTab(int steps)
{
    const int next = (static_cast<int>(m_parts.model.tab()) + steps + tabCount) % tabCount;
    m_parts.model.setTab(static_cast<MainTab>(next));
}

void MainWindow::nextArea()
{
    QList<QWidget*> areas{m_toolBar};
    areas += page().areas();
    for (QWidget* overlay : overlays)
        areas.append(overlay);
    areas.removeIf([](const QWidget* area) { return !area->isVisible(); });
    const QWidget* focus = QApplication::focusWidget();
    const auto here = std::ranges::find_if(
        areas, [&](const QWidget* area) { return focus && (area == focus || area->isAncestorOf(focus)); });
    const auto index = here == areas.end() ? 0 : (std::distance(areas.begin(), here) + 1) % areas.size();
    if (areas[index] == m_toolBar)
        m_toolBar->takeFocus();
    else
        areas[index]->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::escape()
{
    MainWindowModel& model = m_parts.model;
    if (page().leave())
        return;
    if (!model.search(model.tab()).isEmpty())
        model.setSearch(model.tab(), {});
    else if (model.tab() == MainTab::themes && model.isThemeOpen())
        model.closeTheme();
    else
        close();
}

Page& MainWindow::page()
{
    Page*& page = m_pages[m_parts.model.tab()];
    if (!page) {
        const QScopedValueRollback making(m_isMakingPage, true);
        page = m_parts.makePage(m_parts.model.tab());
        m_stack->addWidget(page);
    }
    return *page;
}

void MainWindow::showModel()
{
    if (m_isMakingPage)
        return; // it is shown once it is there, whatever it does to the model before
    Page& shown = page();
    if (m_stack->currentWidget() != &shown)
        m_stack->setCurrentWidget(&shown);
}

QString MainWindow::invitationTo(const QStringList& files)
{
    if (files.isEmpty())
        return {};
    const QString themes = themeInvitation ? themeInvitation(files) : QString();
    return themes.isEmpty() ? page().invitation(files) : themes;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QString invitation = invitationTo(filesIn(*event->mimeData()));
    if (invitation.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_dropFrame->invite(invitation);
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent*)
{
    m_dropFrame->hide();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    m_dropFrame->hide();
    const QStringList files = filesIn(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (themeInvitation && !themeInvitation(files).isEmpty())
        dropThemes(files);
    else
        page().drop(files);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

} // namespace ambrelle
