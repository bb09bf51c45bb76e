// SPDX-License-Identifier: MIT

#include "window/look/FocusRing.h"

#include "window/look/AppLook.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <cmath>

namespace ambrelle {

namespace {

constexpr int ringGap = 1; // to the control

bool movesFocus(int key)
{
    return (key >= Qt::Key_Home && key <= Qt::Key_PageDown) || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

/// Lists, sliders and segments mark a part of themselves.
bool hasRingAround(const QWidget* widget)
{
    return qobject_cast<const QPushButton*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget)
        || qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget)
        || qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QToolButton*>(widget);
}

} // namespace

FocusRing::FocusRing()
    : QObject(qApp)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::follow);
}

FocusRing& FocusRing::shared()
{
    static QPointer<FocusRing> ring;
    if (!ring)
        ring = new FocusRing;
    return *ring;
}

int FocusRing::reach()
{
    return ringGap + static_cast<int>(std::ceil(AppLook::shared().ringWidth()));
}

bool FocusRing::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        // What a press hides is left as if by Tab.
        const bool isPressing = QGuiApplication::mouseButtons() != Qt::NoButton;
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
            show(!isPressing);
        else if (reason == Qt::MouseFocusReason)
            show(false);
        break;
    }
    case QEvent::KeyPress:
        if (object->isWidgetType() && movesFocus(static_cast<const QKeyEvent*>(event)->key()))
            show(true);
        break;
    case QEvent::MouseButtonPress:
        if (object->isWidgetType())
            show(false);
        break;
    default: break;
    }
    return false;
}

void FocusRing::show(bool shown)
{
    if (m_shown == shown)
        return;
    m_shown = shown;
    follow();
    if (QWidget* focused = QApplication::focusWidget())
        focused->update();
}

void FocusRing::follow()
{
    QWidget* focused = m_shown ? QApplication::focusWidget() : nullptr;
    if (focused && !hasRingAround(focused))
        focused = nullptr;
    if (!focused) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame)
        m_frame = new QFocusFrame;
    m_frame->setPalette(focused->palette());
    m_frame->setWidget(focused);
}

} // namespace ambrelle
