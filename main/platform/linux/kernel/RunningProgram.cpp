#include "platform/linux/kernel/RunningProgram.h"

#include <QFile>

namespace ambrelle {

QString runningProgram()
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
}

} // namespace ambrelle
