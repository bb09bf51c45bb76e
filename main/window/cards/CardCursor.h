// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

namespace ambrelle {

enum class CardMove { previous, next, up, down, first, last, pageUp, pageDown };

/// The row that the keyboard goes to from row `current` in a grid of that many columns. Cards are in reading order;
/// headings, which are passed over, begin a line of their own. Up and down keep the column as far as the line has one;
/// a page is that many lines of cards. Without a current card every move finds the first one, `last` the last; at an
/// end it stays. -1 if there are no cards.
int movedCard(const QList<bool>& headings, int columns, int current, CardMove move, int linesPerPage);

} // namespace ambrelle
