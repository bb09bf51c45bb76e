// SPDX-License-Identifier: MIT

#include "platform/mac/ListerProcessSource.h"

#include "foundation/Wording.h"
#include "platform/mac/ProcessList.h"

#include <QProcess>
#include <QStandardPaths>

#include <memory>
#include <utility>

namespace ambrelle {

ListerProcessSource::ListerProcessSource(const QString& program, const QStringList& arguments)
    : m_program(program)
    , m_path(QStandardPaths::findExecutable(program))
    , m_arguments(arguments)
{
}

ListerProcessSource::~ListerProcessSource()
{
    // A lister that still runs must not complete into an owner that is going away.
    const auto running = findChildren<QProcess*>();
    for (auto* process : running) {
        process->disconnect();
        process->kill();
        process->waitForFinished();
    }
}

QString ListerProcessSource::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("“%1” is not installed.").arg(m_program);
}

void ListerProcessSource::top(int count, Completion completion)
{
    auto* process = new QProcess(this);
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setStandardInputFile(QProcess::nullDevice());
    const auto answer = [process, completion = std::move(completion)](const QList<ProcessRow>& rows) {
        process->disconnect();
        process->deleteLater();
        completion(rows);
    };
    connect(process, &QProcess::finished, this, [process, count, answer] {
        const auto text = process->readAllStandardOutput();
        answer(parseProcessList({text.constData(), static_cast<std::size_t>(text.size())}, count));
    });
    connect(process, &QProcess::errorOccurred, this, [answer](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            answer({});
    });
    process->start(m_path, m_arguments, QIODevice::ReadOnly);
}

} // namespace ambrelle
