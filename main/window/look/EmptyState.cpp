// SPDX-License-Identifier: MIT

#include "window/look/EmptyState.h"

#include "foundation/Wording.h"
#include "window/look/Button.h"
#include "window/look/ControlPainting.h"
#include "window/look/TextLabel.h"

#include <QBoxLayout>
#include <QPainter>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int emptySymbol = 40;
constexpr int emptySpacing = 6;
constexpr int emptyGap = 14; // below the symbol and above the buttons
constexpr int emptyButtonGap = 10;
constexpr int emptyMargin = 20;

} // namespace

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent)
    , m_symbolRoom(new QWidget)
    , m_heading(new TextLabel(TextRole::heading))
    , m_caption(new TextLabel(TextRole::caption))
    , m_row(new QHBoxLayout)
{
    m_symbolRoom->setFixedSize(emptySymbol, emptySymbol);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(emptyMargin, 0, emptyMargin, 0);
    column->setSpacing(emptySpacing);
    column->addStretch(1);
    column->addWidget(m_symbolRoom, 0, Qt::AlignHCenter);
    column->addSpacing(emptyGap - emptySpacing);
    for (TextLabel* label : {m_heading, m_caption}) {
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    column->addSpacing(emptyGap - emptySpacing);
    column->addLayout(m_row);
    column->addStretch(1);
    m_row->setSpacing(emptyButtonGap);
    m_row->addStretch(1);
    m_row->addStretch(1);
    connect(&AppLook::shared(), &AppLook::changed, this, qOverload<>(&QWidget::update));
}

void EmptyState::setTexts(const QString& symbol, const QString& heading, const QString& caption)
{
    m_symbol = symbol;
    m_heading->setText(heading);
    m_caption->setText(caption);
    m_caption->setVisible(!caption.isEmpty());
    update();
}

void EmptyState::setButtons(const QList<QWidget*>& buttons)
{
    for (QWidget* button : m_buttons) {
        m_row->removeWidget(button);
        button->hide();
        button->deleteLater(); // it may be the one that was pressed
    }
    m_buttons = buttons;
    m_widen = nullptr;
    for (qsizetype place = 0; place < buttons.size(); ++place)
        m_row->insertWidget(static_cast<int>(place) + 1, buttons[place]);
    setFocusProxy(buttons.value(0));
}

void EmptyState::setSearch(const QString& sentence, bool elsewhere)
{
    setTexts(u"magnifyingglass"_s, sentence, {});
    if (!m_widen) {
        auto* clear = new Button(Wording::tr("Clear Search"));
        auto* widen = new Button(Wording::tr("Search in All"));
        connect(clear, &Button::clicked, this, &EmptyState::cleared);
        connect(widen, &Button::clicked, this, &EmptyState::widened);
        setButtons({clear, widen});
        m_widen = widen;
    }
    m_widen->setVisible(elsewhere);
}

void EmptyState::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSymbol(painter, m_symbolRoom->geometry(), m_symbol, AppLook::shared().colours().soft);
}

} // namespace ambrelle
