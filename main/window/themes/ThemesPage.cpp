// SPDX-License-Identifier: MIT

#include "window/themes/ThemesPage.h"

namespace ambrelle {

ThemesPage::ThemesPage(const WindowContext& context)
    : m_with(context)
{
}

void ThemesPage::takeFocus(bool) { }
void ThemesPage::openFirst() { }
QList<QWidget*> ThemesPage::areas()
{
    return {this};
}

} // namespace ambrelle
