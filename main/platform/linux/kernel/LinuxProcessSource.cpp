#include "platform/linux/kernel/LinuxProcessSource.h"

namespace ambrelle {

LinuxProcessSource::LinuxProcessSource(const QByteArray& procFolder)
    : m_table(procFolder)
{
}

QString LinuxProcessSource::whyNot() const
{
    return isAvailable() ? QString() : QStringLiteral("The kernel does not tell which processes run.");
}

void LinuxProcessSource::top(int count, Completion completion)
{
    completion(m_table.busiest(count));
}

} // namespace ambrelle
