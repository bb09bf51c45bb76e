// SPDX-License-Identifier: MIT

#include "window/settings/SettingsFields.h"

#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/Progress.h"
#include "window/settings/SettingsSection.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int entryWidth = 200;
constexpr int entryGap = 8;

} // namespace

NumberField::NumberField(const RowRange& range, QWidget* parent)
    : QSpinBox(parent)
{
    setRange(range.least, range.most);
    setPrefix(range.sentence.section(u"%1"_s, 0, 0));
    setSuffix(range.sentence.section(u"%1"_s, 1));
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_typed = true; });
    // Told whenever the focus goes, too.
    connect(this, &QSpinBox::editingFinished, this, [this] {
        if (std::exchange(m_typed, false))
            Q_EMIT confirmed();
    });
}

void NumberField::keyPressEvent(QKeyEvent* event)
{
    m_typed = m_typed || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QSpinBox::keyPressEvent(event);
}

void NumberField::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

TextEntry::TextEntry(const QString& placeholder, const QString& button, QWidget* parent)
    : QWidget(parent)
    , m_progress(new Progress(Progress::Shape::ring, {}))
    , m_field(new QLineEdit)
    , m_button(new Button(button))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(entryGap);
    row->addWidget(m_progress);
    row->addWidget(m_field, 1);
    row->addWidget(m_button);
    m_field->setPlaceholderText(placeholder);
    m_field->setClearButtonEnabled(true);
    m_field->setMinimumWidth(AppLook::shared().scaled(entryWidth));
    setFocusProxy(m_field);
    m_progress->hide();
    connect(m_field, &QLineEdit::textChanged, this, &TextEntry::judge);
    connect(m_field, &QLineEdit::returnPressed, this, &TextEntry::enter);
    connect(m_button, &Button::clicked, this, &TextEntry::enter);
    judge();
}

void TextEntry::setStored(const QString& text)
{
    const bool typing = m_field->text().trimmed() != m_stored;
    m_stored = text;
    if (!typing)
        m_field->setText(text);
    judge();
}

void TextEntry::setBusy(const QString& why)
{
    m_progress->setAccessibleName(why);
    m_progress->setVisible(!why.isEmpty());
}

void TextEntry::enter()
{
    const QString text = m_field->text().trimmed();
    if (text == m_stored)
        return;
    m_field->setText(text);
    Q_EMIT entered(text);
}

void TextEntry::judge()
{
    m_button->setEnabled(m_field->text().trimmed() != m_stored);
}

} // namespace ambrelle
