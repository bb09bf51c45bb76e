// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetsPage.h"

namespace ambrelle {

WidgetsPage::WidgetsPage(const WindowContext& context)
    : m_with(context)
{
}

void WidgetsPage::takeFocus(bool) { }
void WidgetsPage::openFirst() { }
QList<QWidget*> WidgetsPage::areas()
{
    return {this};
}

} // namespace ambrelle
