// SPDX-License-Identifier: MIT

#include "window/themes/ThemeFileDialogs.h"

#include "foundation/Wording.h"
#include "model/ThemeFiles.h"
#include "window/look/FileChooser.h"
#include "window/themes/ThemeActions.h"

#include <QDir>
#include <QFileDialog>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A new dialog in place of one that is still open.
QFileDialog* ThemeFileDialogs::open(const QString& title, const QString& accept)
{
    if (m_dialog)
        m_dialog->close();
    m_dialog = makeFileChooser(m_parent.window(), title);
    m_dialog->setNameFilter(Wording::tr("Ambrelle themes (%1)").arg(u"*."_s + ThemeFiles::extension));
    m_dialog->setLabelText(QFileDialog::Accept, accept);
    m_dialog->setLabelText(QFileDialog::Reject, Wording::tr("Cancel"));
    return m_dialog;
}

void ThemeFileDialogs::import()
{
    QFileDialog* dialog = open(Wording::tr("Choose Ambrelle theme files to add to My Themes."), Wording::tr("Add"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    QObject::connect(dialog, &QFileDialog::filesSelected, &m_actions, &ThemeActions::importFiles);
    dialog->open();
}

void ThemeFileDialogs::exportTheme(const QUuid& id)
{
    const SavedTheme* theme = m_actions.saved(id);
    if (!theme)
        return;
    QFileDialog* dialog =
        open(Wording::tr("Export “%1” to share it or move it to another Mac.").arg(theme->name), Wording::tr("Export"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(ThemeFiles::extension);
    dialog->selectFile(ThemeFiles::fileName(*theme));
    QObject::connect(dialog, &QFileDialog::fileSelected, &m_actions,
        [&actions = m_actions, id](const QString& path) { actions.exportTo(id, path); });
    dialog->open();
}

QString themeInvitation(const QStringList& files)
{
    const auto isTheme = [](const QString& file) {
        return file.endsWith(u'.' + ThemeFiles::extension, Qt::CaseInsensitive);
    };
    return !files.isEmpty() && std::ranges::all_of(files, isTheme) ? Wording::tr("Drop to add to My Themes")
                                                                   : QString();
}

} // namespace ambrelle
