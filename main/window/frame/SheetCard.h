// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/Sheet.h"

#include <QWidget>

class QBoxLayout;
class QComboBox;
class QLineEdit;
class QScrollArea;

namespace ambrelle {

class Button;

/// One sheet as it is seen: a dialog inside the window.
class SheetCard final : public QWidget {
    Q_OBJECT
public:
    explicit SheetCard(const SheetContent& content, QWidget* parent);

    /// Takes the size that its contents want, and no more than the room there is; contents scroll where they must.
    void fit(const QSize& room);
    void takeFocus();
    bool wasEdited() const; ///< whether anything was typed
    void leave(); ///< without an answer, as "Cancel" does
    void pressStandard(); ///< as Enter does
    void scroll(int pages); ///< where its contents have more to say than there is room

    static constexpr int shadowReach = 18; ///< around what is painted as the card

Q_SIGNALS:
    void answered(const ambrelle::SheetAnswer& answer);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* makeBody();
    void addControls(QBoxLayout& column);
    void makeButtons(QBoxLayout& row);
    void press(const QString& id);
    void judge();
    QRectF plate() const;

    SheetContent m_content;
    QScrollArea* m_scroll;
    QLineEdit* m_field = nullptr;
    QComboBox* m_choice = nullptr;
    QWidget* m_body; // after what is made with it
    QBoxLayout* m_row;
    QList<Button*> m_buttons;
    Button* m_standard = nullptr;
};

} // namespace ambrelle
