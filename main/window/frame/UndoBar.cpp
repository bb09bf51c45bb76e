// SPDX-License-Identifier: MIT

#include "window/frame/UndoBar.h"

#include "foundation/Wording.h"
#include "window/frame/Undo.h"
#include "window/look/AccessibleRole.h"
#include "window/look/Button.h"
#include "window/look/ControlPainting.h"
#include "window/look/ReadingOrder.h"
#include "window/look/Shadow.h"
#include "window/look/TextLabel.h"
#include "window/look/Transitions.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int barFade = 180; // milliseconds
constexpr int barFoot = 18; // to the edge of the window
constexpr int leastBarHeight = 44;
constexpr double barCorner = 12;
constexpr int barShadow = 18; // room for it
constexpr int barPadding = 16;
constexpr int barEnd = 8; // beside the last button
constexpr int barVertical = 6;
constexpr int barSymbol = 18;
constexpr int windowMargin = 20; // left and right of the widest bar

class BarSymbol final : public QWidget {
public:
    BarSymbol() { setFixedSize(barSymbol, barSymbol); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintSymbol(painter, QRectF(rect()), u"exclamationmark.triangle.fill"_s, palette().color(QPalette::WindowText));
    }
};

} // namespace

UndoBar::UndoBar(UndoKeeper& keeper, QWidget& window)
    : QWidget(&window)
    , m_keeper(keeper)
    , m_row(new QHBoxLayout(this))
    , m_symbol(new BarSymbol)
    , m_text(new TextLabel(TextRole::body))
    , m_action(new Button({}, Button::Kind::link))
    , m_close(Button::symbolOnly(u"xmark"_s, Wording::tr("Dismiss")))
{
    setAccessibleRole(*this, QAccessible::AlertMessage);
    m_text->setWordWrap(true);
    m_row->addWidget(m_symbol);
    m_row->addWidget(m_text, 1);
    m_row->addWidget(m_action);
    m_row->addWidget(m_close);
    hide();
    window.installEventFilter(this);
    connect(m_action, &Button::clicked, this, [this] { m_keeper.failure() ? m_keeper.tryAgain() : m_keeper.undo(); });
    connect(m_close, &Button::clicked, &m_keeper, &UndoKeeper::dismiss);
    connect(&m_keeper, &UndoKeeper::changed, this, &UndoBar::showKept);
    connect(&AppLook::shared(), &AppLook::changed, this, &UndoBar::dress);
    connect(qApp, &QApplication::focusChanged, this, &UndoBar::noteFocus);
    dress();
    showKept();
}

void UndoBar::dress()
{
    const AppColours& colours = AppLook::shared().colours();
    const bool failed = m_keeper.failure();
    QPalette dressed = QApplication::palette();
    dressed.setColor(QPalette::Window, failed ? colours.danger : colours.bar);
    dressed.setColor(QPalette::WindowText, failed ? colours.onDanger : colours.barText);
    for (const QPalette::ColorRole role : {QPalette::Link, QPalette::Highlight})
        dressed.setColor(role, failed ? colours.onDanger : colours.barLink);
    for (QWidget* part : {static_cast<QWidget*>(this), m_symbol, static_cast<QWidget*>(m_text),
             static_cast<QWidget*>(m_action), static_cast<QWidget*>(m_close)})
        part->setPalette(dressed);
    arrange();
    update();
}

void UndoBar::showKept()
{
    if (!m_keeper.isShown()) {
        m_announced.clear();
        if (std::exchange(m_up, false)) {
            giveFocusBack();
            fadeOut(*this, barFade);
        }
        return;
    }
    const Failure* failure = m_keeper.failure();
    const QString text = m_keeper.text();
    m_text->setText(text);
    m_action->setText(failure ? Wording::tr("Try Again") : Wording::tr("Undo"));
    m_action->setVisible(!failure || failure->tryAgain);
    setFocusProxy(m_action->isHidden() ? m_close : m_action); // the keyboard comes to the bar by F6
    m_symbol->setVisible(failure);
    setAccessibleName(text);
    dress();
    raise();
    if (!std::exchange(m_up, true))
        fadeIn(*this, barFade);
    if (std::exchange(m_announced, text) == text)
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void UndoBar::arrange()
{
    const QWidget& window = *parentWidget();
    const int most = window.width() - 2 * windowMargin + 2 * barShadow;
    m_text->setMinimumWidth(0);
    m_row->setContentsMargins(
        inReadingOrder({barShadow + barPadding, barShadow + barVertical, barShadow + barEnd, barShadow + barVertical},
            layoutDirection()));
    m_row->invalidate();
    const QMargins around = m_row->contentsMargins();
    int others = around.left() + around.right();
    for (const QWidget* part : {m_symbol, static_cast<QWidget*>(m_action), static_cast<QWidget*>(m_close)})
        others += part->isHidden() ? 0 : part->sizeHint().expandedTo(part->minimumSize()).width() + m_row->spacing();
    const int wanted = m_text->fontMetrics().horizontalAdvance(m_text->text()) + 1;
    const int width = std::min(most, wanted + others);
    const int height = std::max({leastBarHeight + 2 * barShadow, m_row->totalHeightForWidth(width)});
    setGeometry((window.width() - width) / 2, window.height() - barFoot + barShadow - height, width, height);
}

bool UndoBar::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        arrange();
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        m_keeper.makeFinal();
    return QWidget::eventFilter(object, event);
}

void UndoBar::judgeHold()
{
    const QWidget* focused = QApplication::focusWidget();
    m_keeper.setHeld(m_pointed || (focused && isAncestorOf(focused)));
}

/// The keyboard goes back to where it was before it came here.
void UndoBar::noteFocus(QWidget* before, QWidget* now)
{
    const auto isHere = [this](const QWidget* widget) { return widget && isAncestorOf(widget); };
    if (isHere(now) && before && !isHere(before))
        m_before = before;
    judgeHold();
}

void UndoBar::giveFocusBack()
{
    const QWidget* focused = window()->focusWidget();
    if (focused && isAncestorOf(focused) && m_before && m_before->isVisible())
        m_before->setFocus(Qt::OtherFocusReason);
    m_before = nullptr;
}

bool UndoBar::event(QEvent* event)
{
    // Else Escape would reach the shortcut of the window, and hide that.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QWidget::event(event);
}

void UndoBar::enterEvent(QEnterEvent*)
{
    m_pointed = true;
    judgeHold();
}

void UndoBar::leaveEvent(QEvent*)
{
    m_pointed = false;
    judgeHold();
}

void UndoBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        m_keeper.dismiss();
    else
        QWidget::keyPressEvent(event);
}

void UndoBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plate = QRectF(rect()).adjusted(barShadow, barShadow, -barShadow, -barShadow);
    drawShadow(painter, plate, barCorner);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(plate, barCorner, barCorner);
}

} // namespace ambrelle
