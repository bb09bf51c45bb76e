// SPDX-License-Identifier: MIT

#include "window/frame/MainWindow.h"

#include "foundation/Wording.h"
#include "window/frame/MainWindowModel.h"
#include "window/look/SymbolIcon.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize{760, 520};
constexpr int margin = 28;
constexpr int columnWidth = 240;
constexpr int columnSpacing = 4;
constexpr QSize tabSymbolSize{18, 18};

QString sentenceOf(MainTab tab)
{
    switch (tab) {
    case MainTab::themes: return Wording::tr("The thirty themes will be chosen here. This tab is not built yet.");
    case MainTab::widgets: return Wording::tr("Single widgets will be added here. This tab is not built yet.");
    case MainTab::wallpapers: return Wording::tr("Wallpapers will be chosen here. This tab is not built yet.");
    case MainTab::settings: return Wording::tr("Preferences will be set here. This tab is not built yet.");
    }
    return {};
}

QString sentenceOf(const QStringList& files)
{
    QStringList names;
    for (const QString& file : files)
        names += QFileInfo(file).fileName();
    return names.isEmpty() ? QString() : Wording::tr("Theme files cannot be opened yet: %1").arg(names.join(u", "_s));
}

QIcon blank()
{
    QPixmap nothing(tabSymbolSize);
    nothing.fill(Qt::transparent);
    return nothing;
}

QLabel* makeLabel(double enlargement = 1)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * enlargement);
    font.setWeight(enlargement > 1 ? QFont::DemiBold : QFont::Normal);
    label->setFont(font);
    return label;
}

} // namespace

MainWindow::MainWindow(MainWindowModel& model, ActionMenu::Items actions)
    : m_model(model)
    , m_actions(std::move(actions))
{
    constexpr double titleEnlargement = 2.2;
    m_tabs = new QTabBar;
    m_title = makeLabel(titleEnlargement);
    m_sentence = makeLabel();
    m_files = makeLabel();
    m_column = new QVBoxLayout;
    m_column->setSpacing(columnSpacing);
    auto* page = new QVBoxLayout;
    auto* columns = new QHBoxLayout;
    columns->setContentsMargins(margin, margin, margin, margin);
    columns->setSpacing(margin);
    columns->addLayout(page, 1);
    columns->addLayout(m_column);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_tabs);
    rows->addLayout(columns, 1);
    setWindowIcon(QIcon::fromTheme(u"org.ambrelle.Ambrelle"_s, markIcon()));
    setWindowTitle(u"Ambrelle"_s);
    resize(firstSize);
    makePage(*page);
    makeTabs();
    makeButtons();
    const auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
    connect(&m_model, &MainWindowModel::changed, this, &MainWindow::showModel);
    showModel();
}

void MainWindow::makeTabs()
{
    m_tabs->setExpanding(false);
    m_tabs->setDocumentMode(true);
    m_tabs->setAccessibleName(Wording::tr("Tabs"));
    for (const MainTab tab : allCases<MainTab>())
        m_tabs->addTab(title(tab));
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) { m_model.setTab(static_cast<MainTab>(index)); });
}

void MainWindow::makePage(QVBoxLayout& page)
{
    page.setSpacing(margin / 2);
    page.addWidget(m_title);
    page.addWidget(m_sentence);
    page.addWidget(m_files);
    page.addStretch();
}

void MainWindow::showModel()
{
    const MainTab tab = m_model.tab();
    m_tabs->setCurrentIndex(static_cast<int>(tab));
    m_title->setText(title(tab));
    m_sentence->setText(sentenceOf(tab));
    m_files->setText(sentenceOf(m_model.handedFiles()));
    m_files->setVisible(!m_files->text().isEmpty());
}

/// Makes the buttons anew, as things stand now; the one with the focus keeps it.
void MainWindow::makeButtons()
{
    qsizetype focused = -1;
    for (qsizetype index = 0; index < m_buttons.size(); ++index) {
        if (m_buttons[index]->hasFocus())
            focused = index;
    }
    while (QLayoutItem* item = m_column->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    m_buttons.clear();
    m_actions.refill();
    for (QAction* action : m_actions.actions()) {
        if (action->isSeparator()) {
            m_column->addSpacing(margin / 2);
            continue;
        }
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setIconSize(tabSymbolSize);
        if (action->icon().isNull())
            button->setIcon(blank()); // the texts stand below each other
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setFixedWidth(columnWidth);
        m_column->addWidget(button);
        m_buttons += button;
        // Queued: the button is still busy with its click.
        connect(action, &QAction::triggered, this, &MainWindow::makeButtons, Qt::QueuedConnection);
    }
    m_column->addStretch();
    if (focused >= 0 && focused < m_buttons.size())
        m_buttons[focused]->setFocus();
}

void MainWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        makeButtons();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

} // namespace ambrelle
