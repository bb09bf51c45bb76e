// SPDX-License-Identifier: MIT

#include "window/frame/SheetHost.h"

#include "window/frame/SheetCard.h"
#include "window/look/AppLook.h"
#include "window/look/Transitions.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace ambrelle {

namespace {

constexpr int sheetFade = 150; // milliseconds

/// Keys of the window and the program that work over a sheet too.
bool passesSheet(const QKeyEvent& event)
{
    return event.modifiers() == Qt::ControlModifier && (event.key() == Qt::Key_W || event.key() == Qt::Key_Q);
}

} // namespace

SheetHost::SheetHost(SheetQueue& queue, QWidget& window)
    : QWidget(&window)
    , m_queue(queue)
{
    setFocusPolicy(Qt::NoFocus);
    hide();
    window.installEventFilter(this);
    connect(&queue, &SheetQueue::changed, this, &SheetHost::showCurrent);
    connect(&AppLook::shared(), &AppLook::changed, this, [this] {
        arrange();
        update();
    });
    showCurrent();
}

void SheetHost::showCurrent()
{
    const bool wasShown = m_card;
    if (m_card) {
        m_card->hide();
        m_card->deleteLater(); // it is still busy with its answer
        m_card = nullptr;
    }
    const SheetContent* content = m_queue.current();
    if (!content) {
        if (wasShown && m_before && m_before->isVisible())
            m_before->setFocus(Qt::OtherFocusReason);
        m_before = nullptr;
        setAttribute(Qt::WA_TransparentForMouseEvents);
        fadeOut(*this, sheetFade);
        return;
    }
    if (!wasShown)
        m_before = window()->focusWidget();
    m_card = new SheetCard(*content, this);
    connect(m_card, &SheetCard::answered, this, [this](const SheetAnswer& answer) { m_queue.answer(answer); });
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
    setGeometry(parentWidget()->rect());
    raise();
    m_card->show();
    arrange();
    if (!wasShown)
        fadeIn(*this, sheetFade);
    m_card->takeFocus();
    QAccessibleEvent opened(m_card, QAccessible::DialogStart);
    QAccessible::updateAccessibility(&opened);
}

void SheetHost::arrange()
{
    if (!m_card)
        return;
    m_card->fit(size());
    m_card->move((width() - m_card->width()) / 2, (height() - m_card->height()) / 2);
}

bool SheetHost::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        m_queue.leave();
    return QWidget::eventFilter(object, event);
}

SheetCard* SheetHost::card() const
{
    return m_card;
}

bool SheetHost::event(QEvent* event)
{
    // What the sheet has no use for does not reach the shortcuts of the window below.
    if (event->type() == QEvent::ShortcutOverride && m_card && !passesSheet(*static_cast<QKeyEvent*>(event)))
        event->accept();
    return QWidget::event(event);
}

void SheetHost::keyPressEvent(QKeyEvent* event)
{
    if (!m_card || passesSheet(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Escape: m_card->leave(); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: m_card->pressStandard(); break;
    case Qt::Key_PageUp: m_card->scroll(-1); break;
    case Qt::Key_PageDown: m_card->scroll(1); break;
    default: break;
    }
    event->accept();
}

void SheetHost::mousePressEvent(QMouseEvent* event)
{
    if (m_card
        && !m_card->geometry().marginsRemoved(QMargins(1, 1, 1, 1) * SheetCard::shadowReach).contains(event->pos())
        && !m_card->wasEdited())
        m_card->leave();
    event->accept();
}

void SheetHost::resizeEvent(QResizeEvent*)
{
    arrange();
}

bool SheetHost::focusNextPrevChild(bool next)
{
    QWidget* focused = window()->focusWidget();
    if (!m_card)
        return QWidget::focusNextPrevChild(next);
    QWidget* start = focused && isAncestorOf(focused) ? focused : m_card;
    for (QWidget* candidate = start;;) {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (candidate == start)
            return true; // nowhere else to go
        if (m_card->isAncestorOf(candidate) && candidate->focusPolicy() & Qt::TabFocus && !candidate->focusProxy()
            && candidate->isVisibleTo(this) && candidate->isEnabled()) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
}

void SheetHost::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), AppLook::shared().colours().scrim);
}

} // namespace ambrelle
