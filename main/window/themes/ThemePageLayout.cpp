// SPDX-License-Identifier: MIT

#include "window/themes/ThemePageLayout.h"

#include "window/look/Measures.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr int pageLead = 24; // above and below
constexpr int columnGap = 28;
constexpr double pictureRatio = 0.625; // height by width
constexpr int leastPicture = 160; // wide
constexpr int mostStripGap = 28;

} // namespace

ThemePageLayout ThemePageLayout::of(const ThemePageWants& wants)
{
    ThemePageLayout layout;
    const int margin = measures::margin(wants.page.width());
    const QRect inside = QRect(QPoint(), wants.page).adjusted(margin, pageLead, -margin, -pageLead);
    const int room = std::max(leastPicture, inside.width() - columnGap - wants.column);
    const int width = std::clamp(static_cast<int>(inside.height() / pictureRatio), leastPicture, room);
    const QSize picture(width, static_cast<int>(width * pictureRatio));
    const int rest = std::max(0, inside.width() - width - columnGap - wants.column);
    layout.picture = {inside.topLeft() + QPoint(rest / 2, 0), picture};
    const int high = std::max(picture.height(), std::min(wants.columnHeight, inside.height()));
    layout.column = {layout.picture.right() + 1 + columnGap, inside.top(), wants.column, high};
    const int left = inside.height() - picture.height();
    if (left < wants.strip)
        return layout;
    const bool isBeside = high > picture.height(); // of the column
    const int gap = std::min(mostStripGap, left - wants.strip);
    layout.strip = {isBeside ? layout.picture.left() : inside.left(), layout.picture.bottom() + 1 + gap,
        isBeside ? width : inside.width(), wants.strip};
    return layout;
}

} // namespace ambrelle
