// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/RunningProgram.h"

#include <QFile>

namespace ambrelle {

using namespace Qt::StringLiterals;

QString runningProgram()
{
    return QFile::symLinkTarget(u"/proc/self/exe"_s);
}

} // namespace ambrelle
