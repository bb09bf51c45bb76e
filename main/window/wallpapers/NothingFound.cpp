// SPDX-License-Identifier: MIT

#include "window/wallpapers/NothingFound.h"

#include "foundation/Wording.h"
#include "window/look/Button.h"
#include "window/look/ControlPainting.h"
#include "window/look/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int nothingSymbol = 40;
constexpr int nothingGap = 12;

} // namespace

NothingFound::NothingFound(QWidget* parent)
    : QWidget(parent)
    , m_heading(new TextLabel(TextRole::heading))
    , m_widen(new Button(Wording::tr("Search in All")))
{
    auto* clear = new Button(Wording::tr("Clear Search"));
    m_heading->setAlignment(Qt::AlignCenter);
    m_heading->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addStretch();
    buttons->addWidget(clear);
    buttons->addWidget(m_widen);
    buttons->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, nothingSymbol + nothingGap, 0, 0);
    column->setSpacing(nothingGap);
    column->addWidget(m_heading);
    column->addLayout(buttons);
    connect(clear, &Button::clicked, this, &NothingFound::cleared);
    connect(m_widen, &Button::clicked, this, &NothingFound::widened);
}

void NothingFound::setSearch(const QString& sentence, bool elsewhere)
{
    m_heading->setText(sentence);
    m_widen->setVisible(elsewhere);
}

void NothingFound::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintSymbol(painter, QRectF((width() - nothingSymbol) / 2.0, 0, nothingSymbol, nothingSymbol), u"magnifyingglass"_s,
        AppLook::shared().colours().soft);
}

} // namespace ambrelle
