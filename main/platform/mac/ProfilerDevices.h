// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DeviceSource.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

/// The Bluetooth devices that a system profiler reports, on systems that have one. It tells no changes, and takes
/// seconds for an answer.
class ProfilerDevices final : public DeviceSource {
    Q_OBJECT
public:
    explicit ProfilerDevices(QString program = u"/usr/sbin/system_profiler"_s);

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
