// SPDX-License-Identifier: MIT

#include "window/wallpapers/WallpapersPage.h"

namespace ambrelle {

WallpapersPage::WallpapersPage(const WindowContext& context)
    : m_with(context)
{
}

void WallpapersPage::takeFocus(bool) { }
void WallpapersPage::openFirst() { }
QList<QWidget*> WallpapersPage::areas()
{
    return {this};
}

} // namespace ambrelle
