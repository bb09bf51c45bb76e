// SPDX-License-Identifier: MIT

#include "window/frame/SearchField.h"

#include "window/look/AppLook.h"
#include "window/look/SymbolIcon.h"

#include <QAction>
#include <QKeyEvent>

namespace ambrelle {

using namespace Qt::StringLiterals;

SearchField::SearchField(QWidget* parent)
    : QLineEdit(parent)
{
    addAction(symbolIcon(u"magnifyingglass"_s, AppLook::shared().colours().soft), LeadingPosition);
    setClearButtonEnabled(true);
    setAcceptDrops(false); // files are for the window
    connect(this, &QLineEdit::textEdited, this, &SearchField::typed);
    // The clear button clears without anything being edited.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty() && hasFocus())
            Q_EMIT typed(text);
    });
    connect(&AppLook::shared(), &AppLook::changed, this,
        [this] { actions().first()->setIcon(symbolIcon(u"magnifyingglass"_s, AppLook::shared().colours().soft)); });
}

void SearchField::setWhat(const QString& placeholder, const QString& text)
{
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    if (text != this->text()) {
        const QSignalBlocker quiet(this);
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
