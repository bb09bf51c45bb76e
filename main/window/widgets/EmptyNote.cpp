// SPDX-License-Identifier: MIT

#include "window/widgets/EmptyNote.h"

#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace ambrelle {

namespace {

constexpr int noteSymbol = 40;

class NoteSymbol final : public QWidget {
public:
    explicit NoteSymbol(const QString& symbol)
        : m_symbol(symbol)
    {
        setFixedSize(noteSymbol, noteSymbol);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintSymbol(painter, rect(), m_symbol, AppLook::shared().colours().soft);
    }

private:
    QString m_symbol;
};

TextLabel* centredLabel(TextRole role)
{
    auto* label = new TextLabel(role);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

EmptyNote::EmptyNote(const QString& symbol, QWidget* parent)
    : QWidget(parent)
    , m_heading(centredLabel(TextRole::heading))
    , m_caption(centredLabel(TextRole::caption))
    , m_buttons(new QWidget)
{
    auto* row = new QHBoxLayout(m_buttons);
    row->setContentsMargins(0, 8, 0, 0);
    row->setSpacing(8);
    row->setAlignment(Qt::AlignCenter);
    m_buttons->hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(4);
    column->addStretch(2);
    column->addWidget(new NoteSymbol(symbol), 0, Qt::AlignHCenter);
    column->addSpacing(8);
    column->addWidget(m_heading);
    column->addWidget(m_caption);
    column->addWidget(m_buttons);
    column->addStretch(3);
}

void EmptyNote::setTexts(const QString& heading, const QString& caption)
{
    m_heading->setText(heading);
    m_caption->setText(caption);
    m_caption->setVisible(!caption.isEmpty());
}

Button* EmptyNote::addButton(const QString& text)
{
    auto* button = new Button(text);
    m_buttons->layout()->addWidget(button);
    m_buttons->show();
    return button;
}

} // namespace ambrelle
