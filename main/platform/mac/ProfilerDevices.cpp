// SPDX-License-Identifier: MIT

#include "platform/mac/ProfilerDevices.h"

#include "foundation/Wording.h"
#include "platform/mac/ProfilerReport.h"

#include <QProcess>
#include <QTimer>

#include <chrono>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 60s;

} // namespace

ProfilerDevices::ProfilerDevices(QString program)
    : m_program(std::move(program))
{
}

void ProfilerDevices::refresh()
{
    if (std::exchange(m_running, true))
        return;
    auto* process = new QProcess(this);
    process->setStandardErrorFile(QProcess::nullDevice());
    const auto ended = [this, process](bool hasReport) {
        process->disconnect(this);
        process->deleteLater();
        m_running = false;
        tell(hasReport ? devicesOfProfilerReport(process->readAllStandardOutput()) : std::nullopt);
    };
    connect(process, &QProcess::finished, this,
        [ended](int code, QProcess::ExitStatus status) { ended(status == QProcess::NormalExit && code == 0); });
    connect(process, &QProcess::errorOccurred, this, [ended](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended(false);
    });
    QTimer::singleShot(patience, process, &QProcess::kill);
    process->start(m_program, {u"SPBluetoothDataType"_s, u"-json"_s});
}

void ProfilerDevices::tell(const std::optional<QList<ConnectedDevice>>& devices)
{
    const QString whyNot = devices ? QString() : Wording::tr("The system profiler tells no Bluetooth devices.");
    const QList<ConnectedDevice> list = devices.value_or(QList<ConnectedDevice>());
    if (m_devices == list && m_whyNot == whyNot)
        return;
    m_devices = list;
    m_whyNot = whyNot;
    Q_EMIT changed();
}

} // namespace ambrelle
