// SPDX-License-Identifier: MIT

#include "window/look/FileChooser.h"

#include <QDir>
#include <QFileDialog>

namespace ambrelle {

QFileDialog* makeFileChooser(QWidget* parent, const QString& title, const QString& folder)
{
    auto* chooser = new QFileDialog(parent, title, folder.isEmpty() ? QDir::homePath() : folder);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setOption(QFileDialog::DontUseNativeDialog);
    return chooser;
}

} // namespace ambrelle
