// SPDX-License-Identifier: MIT

#include "window/look/FileChooser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

class FileChooser final : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    /// The toolkit adds the suffix only to names without a dot. Added here, the question whether to replace a file is
    /// about the one that will be written.
    void accept() override
    {
        auto* name = findChild<QLineEdit*>(u"fileNameEdit"_s);
        const QString suffix = u'.' + defaultSuffix();
        const QString file = selectedFiles().value(0);
        if (acceptMode() == AcceptSave && suffix.size() > 1 && name && !name->text().isEmpty()
            && !QFileInfo(file).isDir() && !file.endsWith(suffix, Qt::CaseInsensitive))
            name->setText(name->text() + suffix);
        QFileDialog::accept();
    }
};

} // namespace

QFileDialog* makeFileChooser(QWidget* parent, const QString& title, const QString& folder)
{
    auto* chooser = new FileChooser(parent, title, folder.isEmpty() ? QDir::homePath() : folder);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setOption(QFileDialog::DontUseNativeDialog);
    return chooser;
}

} // namespace ambrelle
