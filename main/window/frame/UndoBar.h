// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

class QHBoxLayout;

namespace ambrelle {

class Button;
class TextLabel;
class UndoKeeper;

/// What an `UndoKeeper` says, at the foot of a window and over what is there. Takes no focus when it comes; what can be
/// undone becomes final with the window's hiding.
class UndoBar final : public QWidget {
    Q_OBJECT
public:
    /// Lies over `window`, and is its child.
    UndoBar(UndoKeeper& keeper, QWidget& window);

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showKept();
    void dress();
    void arrange();
    void judgeHold();
    void noteFocus(QWidget* before, QWidget* now);
    void giveFocusBack();

    UndoKeeper& m_keeper;
    QHBoxLayout* m_row;
    QWidget* m_symbol;
    TextLabel* m_text;
    Button* m_action;
    Button* m_close;
    QString m_announced;
    QPointer<QWidget> m_before; // had the focus before something here
    bool m_pointed = false;
    bool m_up = false;
};

} // namespace ambrelle
