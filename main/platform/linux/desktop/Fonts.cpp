// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/Fonts.h"

#include "platform/linux/kernel/RunningProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fontconfig/fontconfig.h>

namespace ambrelle::Fonts {

using namespace Qt::StringLiterals;

void prepare()
{
    FcInit();
}

bool registerFolder(const QString& folder)
{
    const QByteArray path = QFile::encodeName(folder);
    // The folder as a whole: fontconfig keeps what it found there, and reads no font file at the next start.
    return QFileInfo(folder).isDir()
        && FcConfigAppFontAddDir(nullptr, reinterpret_cast<const FcChar8*>(path.constData())) == FcTrue;
}

bool registerBundled()
{
    const QDir program = QFileInfo(runningProgram()).dir();
    // Beside the program while developing, below the common prefix when installed.
    for (const QString& folder : {u"share/ambrelle/fonts"_s, u"../share/ambrelle/fonts"_s}) {
        if (registerFolder(QDir::cleanPath(program.filePath(folder))))
            return true;
    }
    return false;
}

} // namespace ambrelle::Fonts
