// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

namespace ambrelle {

class SheetCard;
class SheetQueue;

/// Shows the first sheet of a queue over a window, which is darkened and out of reach meanwhile. Hiding the window
/// leaves the sheet unanswered.
class SheetHost final : public QWidget {
    Q_OBJECT
public:
    /// Covers `window`, and is its child.
    SheetHost(SheetQueue& queue, QWidget& window);

    SheetCard* card() const; ///< null: no sheet is shown

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void showCurrent();
    void arrange();

    SheetQueue& m_queue;
    QPointer<SheetCard> m_card;
    QPointer<QWidget> m_before; // had the focus
};

} // namespace ambrelle
