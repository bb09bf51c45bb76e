// SPDX-License-Identifier: MIT

#include "window/frame/SearchField.h"

#include "foundation/Wording.h"
#include "window/look/AppLook.h"
#include "window/look/SymbolIcon.h"

#include <QAction>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace ambrelle {

using namespace Qt::StringLiterals;

SearchField::SearchField(QWidget* parent)
    : QLineEdit(parent)
{
    addAction(symbolIcon(u"magnifyingglass"_s, AppLook::shared().colours().soft), LeadingPosition);
    setClearButtonEnabled(true);
    if (auto* clear = findChild<QAction*>(u"_q_qlineeditclearaction"_s)) // the toolkit gives it no name
        clear->setText(Wording::tr("Clear Search"));
    setAcceptDrops(false); // files are for the window
    connect(this, &QLineEdit::textEdited, this, &SearchField::typed);
    // The clear button clears without anything being edited.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty() && hasFocus() && !m_isBeingSet)
            Q_EMIT typed(text);
    });
    connect(&AppLook::shared(), &AppLook::changed, this,
        [this] { actions().first()->setIcon(symbolIcon(u"magnifyingglass"_s, AppLook::shared().colours().soft)); });
}

void SearchField::setWhat(const QString& placeholder, const QString& text)
{
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    actions().first()->setText(placeholder);
    if (text != this->text()) {
        // Not blocked: the clear button listens as well.
        const QScopedValueRollback setting(m_isBeingSet, true);
        setText(text);
    }
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down)
        Q_EMIT leftDownwards();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT entered();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace ambrelle
