// SPDX-License-Identifier: MIT

#include "window/settings/ButtonRow.h"

#include "window/look/Button.h"

#include <QHBoxLayout>

namespace ambrelle {

namespace {

constexpr int buttonGap = 8;

} // namespace

QWidget* makeButtonRow(const QList<Button*>& buttons)
{
    auto* row = new QWidget;
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(buttonGap);
    for (Button* button : buttons)
        line->addWidget(button);
    row->setFocusProxy(buttons.first());
    row->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return row;
}

} // namespace ambrelle
