// SPDX-License-Identifier: MIT

#include "platform/linux/picture/ToolRunner.h"

#include "foundation/Wording.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int glance = 40; // milliseconds until a running tool learns that nobody needs it any more

QString firstLine(const QByteArray& text)
{
    return QString::fromUtf8(text.trimmed().split('\n').first()).trimmed();
}

QString failure(const QString& program, QProcess& process)
{
    if (process.exitStatus() == QProcess::CrashExit)
        return Wording::tr("“%1” crashed.").arg(program);
    const QString complaint = firstLine(process.readAllStandardError());
    if (!complaint.isEmpty())
        return Wording::tr("“%1” failed: %2").arg(program, complaint);
    return Wording::tr("“%1” failed with status %2.").arg(program).arg(process.exitCode());
}

} // namespace

ToolRunner::ToolRunner(QObject& owner, std::chrono::milliseconds patience)
    : m_patience(patience)
    , m_worker(owner, SerialWorker::endless)
{
}

ToolRunner::~ToolRunner()
{
    const QMutexLocker lock(&m_mutex);
    m_leaving = true;
    m_left.wakeAll();
}

QString ToolRunner::whyMissing(const QString& program)
{
    const bool missing = QStandardPaths::findExecutable(program).isEmpty();
    return missing ? Wording::tr("The desktop picture is set with “%1”, which is not installed.").arg(program)
                   : QString();
}

ToolAnswer ToolRunner::call(const QString& program, const QStringList& arguments) const
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return {.error = whyMissing(program)};
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(path, arguments, QIODevice::ReadOnly);
    const QDeadlineTimer deadline(m_patience);
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(glance)) {
        if (process.state() != QProcess::NotRunning && (m_leaving || deadline.hasExpired())) {
            process.kill();
            process.waitForFinished();
            return {.error = Wording::tr("“%1” did not answer in time.").arg(program)};
        }
    }
    if (process.error() == QProcess::FailedToStart)
        return {.error = Wording::tr("“%1” cannot be started: %2.").arg(program, process.errorString())};
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {.error = failure(program, process)};
    return {.output = process.readAllStandardOutput()};
}

bool ToolRunner::await(const std::function<bool()>& holds, std::chrono::milliseconds longest) const
{
    const QDeadlineTimer deadline(std::min(longest, m_patience));
    QMutexLocker lock(&m_mutex);
    while (!holds()) {
        if (m_leaving || deadline.hasExpired())
            return false;
        m_left.wait(&m_mutex, glance);
    }
    return true;
}

} // namespace ambrelle
