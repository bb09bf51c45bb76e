// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"

#include <QMenu>

namespace ambrelle {

/// A menu made from items. It is filled whenever it is about to be shown, so that it tells how things stand.
class ActionMenu : public QMenu {
    Q_OBJECT
public:
    using Items = std::function<QList<ActionItem>()>;

    /// `ink`: the colour of the symbols where somebody else draws the menu; else they have that of the text.
    explicit ActionMenu(Items items, const std::optional<QColor>& ink = std::nullopt);

    void refill();
    /// In the direction of reading.
    enum class Corner { topStart, topEnd, bottomEnd };
    /// Opens it with that corner at a place of the screen, as far as there is room.
    void openAt(const QPoint& globalPlace, Corner corner = Corner::topStart);
    /// Opens one of its own for something on a page; it goes when it is closed, or with the page.
    static void openFor(QWidget& page, const QPoint& globalPosition, Items items);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill(QMenu& menu, const QList<ActionItem>& items);

    Items m_items;
    std::optional<QColor> m_ink;
    bool m_isFresh = false; // filled for the opening that comes now
};

} // namespace ambrelle
