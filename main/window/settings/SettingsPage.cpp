// SPDX-License-Identifier: MIT

#include "window/settings/SettingsPage.h"

namespace ambrelle {

SettingsPage::SettingsPage(const WindowContext& context)
    : m_with(context)
{
}

void SettingsPage::takeFocus(bool) { }
void SettingsPage::openFirst() { }
QList<QWidget*> SettingsPage::areas()
{
    return {this};
}

} // namespace ambrelle
