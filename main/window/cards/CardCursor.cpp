// SPDX-License-Identifier: MIT

#include "window/cards/CardCursor.h"

#include <algorithm>

namespace ambrelle {

namespace {

/// Rows side by side.
struct CardLine {
    int first = 0;
    int count = 0;
};

QList<CardLine> linesOf(const QList<bool>& headings, int columns)
{
    QList<CardLine> lines;
    bool fresh = true;
    for (int row = 0; row < headings.size(); ++row) {
        if (headings[row]) {
            fresh = true;
            continue;
        }
        if (fresh || lines.last().count == columns)
            lines.append({row, 0});
        ++lines.last().count;
        fresh = false;
    }
    return lines;
}

} // namespace

int movedCard(const QList<bool>& headings, int columns, int current, CardMove move, int linesPerPage)
{
    const QList<CardLine> lines = linesOf(headings, std::max(1, columns));
    if (lines.isEmpty())
        return -1;
    const int first = lines.first().first;
    const int last = lines.last().first + lines.last().count - 1;
    const auto holds = [current](
                           const CardLine& line) { return current >= line.first && current < line.first + line.count; };
    const auto found = std::find_if(lines.begin(), lines.end(), holds);
    if (move == CardMove::last)
        return last;
    if (move == CardMove::first || found == lines.end())
        return first;

    const int line = static_cast<int>(found - lines.begin());
    const auto inLine = [&](int other) {
        const CardLine& target = lines[std::clamp(other, 0, static_cast<int>(lines.size()) - 1)];
        return target.first + std::min(current - found->first, target.count - 1);
    };
    const auto beside = [&](int step) {
        int row = current + step;
        while (row > first && row < last && headings[row])
            row += step;
        return std::clamp(row, first, last);
    };
    switch (move) {
    case CardMove::previous: return beside(-1);
    case CardMove::next: return beside(1);
    case CardMove::up: return line == 0 ? current : inLine(line - 1);
    case CardMove::down: return line + 1 == lines.size() ? current : inLine(line + 1);
    case CardMove::pageUp: return inLine(line - std::max(1, linesPerPage));
    case CardMove::pageDown: return inLine(line + std::max(1, linesPerPage));
    default: return current;
    }
}

} // namespace ambrelle
