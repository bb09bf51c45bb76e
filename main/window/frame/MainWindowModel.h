// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/MainTab.h"

#include <QObject>
#include <QStringList>

namespace ambrelle {

/// What the main window keeps while it is closed.
class MainWindowModel : public QObject {
    Q_OBJECT
public:
    MainTab tab() const { return m_tab; }
    void setTab(MainTab tab);

    bool showsWelcome() const { return m_showWelcome; } ///< after the first start, until the user closed it
    void setShowWelcome(bool show);

    const QStringList& handedFiles() const { return m_handedFiles; } ///< paths of theme files that wait for the user
    void addHandedFiles(const QStringList& files);

Q_SIGNALS:
    void changed();

private:
    MainTab m_tab = MainTab::themes;
    bool m_showWelcome = false;
    QStringList m_handedFiles;
};

} // namespace ambrelle
