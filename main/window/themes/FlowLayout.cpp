// SPDX-License-Identifier: MIT

#include "window/themes/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace ambrelle {

FlowLayout::FlowLayout(int gap, int lineGap, QWidget* parent)
    : QLayout(parent)
    , m_gap(gap)
    , m_lineGap(lineGap)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, false);
}

QSize FlowLayout::minimumSize() const
{
    QSize least;
    for (const QLayoutItem* item : m_items) {
        if (!item->isEmpty())
            least = least.expandedTo(item->minimumSize());
    }
    return least;
}

void FlowLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    arrange(area, true);
}

/// The height of all lines.
int FlowLayout::arrange(const QRect& area, bool place) const
{
    QList<QLayoutItem*> line;
    int wide = 0;
    int high = 0;
    int top = area.top();
    const auto finish = [&] {
        if (place)
            placeLine(line, area, top, high);
        top += high;
        line.clear();
        wide = high = 0;
    };
    for (QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (!line.isEmpty() && wide + m_gap + size.width() > area.width()) {
            finish();
            top += m_lineGap;
        }
        wide += (line.isEmpty() ? 0 : m_gap) + size.width();
        high = std::max(high, size.height());
        line.append(item);
    }
    finish();
    return top - area.top();
}

void FlowLayout::placeLine(const QList<QLayoutItem*>& line, const QRect& area, int top, int height) const
{
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int left = area.left();
    for (QLayoutItem* item : line) {
        const QSize size(std::min(item->sizeHint().width(), area.width()), item->sizeHint().height());
        const QRect place(QPoint(left, top + (height - size.height()) / 2), size);
        item->setGeometry(QStyle::visualRect(direction, area, place));
        left += size.width() + m_gap;
    }
}

} // namespace ambrelle
