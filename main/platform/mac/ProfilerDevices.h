#pragma once

#include "platform/DeviceSource.h"

namespace ambrelle {

/// The Bluetooth devices that a system profiler reports, on systems that have one. It tells no changes, and takes
/// seconds for an answer.
class ProfilerDevices final : public DeviceSource {
    Q_OBJECT
public:
    explicit ProfilerDevices(QString program = QStringLiteral("/usr/sbin/system_profiler"));

    bool isAvailable() const override { return m_whyNot.isEmpty(); }
    QString whyNot() const override { return m_whyNot; }
    std::optional<QList<ConnectedDevice>> devices() const override { return m_devices; }
    void refresh() override;

private:
    void tell(const std::optional<QList<ConnectedDevice>>& devices);

    QString m_program;
    std::optional<QList<ConnectedDevice>> m_devices;
    QString m_whyNot;
    bool m_running = false;
};

} // namespace ambrelle
