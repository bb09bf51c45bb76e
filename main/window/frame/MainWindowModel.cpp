// SPDX-License-Identifier: MIT

#include "window/frame/MainWindowModel.h"

#include <utility>

namespace ambrelle {

void MainWindowModel::setTab(MainTab tab)
{
    if (std::exchange(m_tab, tab) != tab)
        Q_EMIT changed();
}

void MainWindowModel::setShowWelcome(bool show)
{
    if (std::exchange(m_showWelcome, show) != show)
        Q_EMIT changed();
}

void MainWindowModel::addHandedFiles(const QStringList& files)
{
    m_handedFiles += files;
    const bool changes = !files.isEmpty();
    m_handedFiles.removeDuplicates();
    if (changes)
        Q_EMIT changed();
}

} // namespace ambrelle
