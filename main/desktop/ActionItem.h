// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace ambrelle {

/// One line of a menu, with what it does; a separator when it has no title.
struct ActionItem {
    QString title;
    QString symbol; ///< empty: none
    std::optional<bool> checked; ///< none: it cannot be checked
    QKeySequence key; ///< shown beside the title, works while the menu is open
    std::function<void()> handler;
    QList<ActionItem> items{}; ///< of a submenu
    bool enabled = true;

    static ActionItem separator() { return {}; }
    bool isSeparator() const { return title.isEmpty(); }
};

} // namespace ambrelle
