// SPDX-License-Identifier: MIT

#include "platform/linux/update/BareProcess.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>
#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int glance = 40; // milliseconds until it is looked whether it is still waited for
constexpr qsizetype mostOutput = 4096; // bytes that are kept

void stopNow(QProcess& process)
{
    process.kill();
    process.waitForFinished();
}

} // namespace

std::optional<BareProcess::Result> BareProcess::run(const std::stop_token& stop) const
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setProcessEnvironment(QProcessEnvironment());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardInputFile(input < 0 ? QProcess::nullDevice() : u"/proc/self/fd/%1"_s.arg(input));
    const pid_t self = ::getpid();
    process.setChildProcessModifier([self] {
        // Tied to the thread that started it, which waits for it.
        if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || ::getppid() != self)
            ::_exit(EXIT_FAILURE);
    });
    process.start(QIODevice::ReadOnly);
    const QDeadlineTimer deadline(patience);
    QByteArray output;
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(glance)) {
        const QByteArray more = process.readAllStandardOutput();
        output += more.first(std::min(more.size(), mostOutput - output.size()));
        if (process.state() != QProcess::NotRunning && (stop.stop_requested() || deadline.hasExpired())) {
            stopNow(process);
            return std::nullopt;
        }
    }
    if (process.error() == QProcess::FailedToStart || process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    output += process.readAllStandardOutput();
    output.truncate(mostOutput);
    return Result{.status = process.exitCode(), .output = output};
}

} // namespace ambrelle
