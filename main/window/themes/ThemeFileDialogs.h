// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QUuid>

class QFileDialog;
class QWidget;

namespace ambrelle {

class ThemeActions;

/// Asks which theme files to take, and where to write one.
class ThemeFileDialogs {
public:
    /// The dialogs belong to `parent`, and what they are asked for is done after it has gone, too.
    ThemeFileDialogs(ThemeActions& actions, QWidget& parent)
        : m_actions(actions)
        , m_parent(parent)
    {
    }

    void import();
    void exportTheme(const QUuid& id); ///< nothing for an identifier without a theme

private:
    QFileDialog* open(const QString& title, const QString& accept);

    ThemeActions& m_actions;
    QWidget& m_parent;
    QPointer<QFileDialog> m_dialog;
};

/// What is said while files are held over the window: empty unless all of them may be themes.
QString themeInvitation(const QStringList& files);

} // namespace ambrelle
