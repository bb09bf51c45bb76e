// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DeviceSource.h"

#include <utility>

namespace ambrelle {

/// The accessories a test lays down.
class RecordingDevices final : public DeviceSource {
public:
    bool isAvailable() const override { return m_whyNot.isEmpty(); }
    QString whyNot() const override { return m_whyNot; }
    std::optional<QList<ConnectedDevice>> devices() const override { return m_devices; }
    void refresh() override { ++refreshes; }

    void tell(QList<ConnectedDevice> devices)
    {
        m_devices = std::move(devices);
        m_whyNot.clear();
        Q_EMIT changed();
    }
    void tellWhyNot(const QString& sentence)
    {
        m_devices.emplace();
        m_whyNot = sentence;
        Q_EMIT changed();
    }

    int refreshes = 0;

private:
    std::optional<QList<ConnectedDevice>> m_devices;
    QString m_whyNot;
};

} // namespace ambrelle
