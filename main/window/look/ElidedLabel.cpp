// SPDX-License-Identifier: MIT

#include "window/look/ElidedLabel.h"

#include <QPainter>

namespace ambrelle {

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

} // namespace ambrelle
