#pragma once

#include "platform/DeviceSource.h"

namespace ambrelle {

/// A machine without accessories.
class HeadlessDevices final : public DeviceSource {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode does not look for devices."); }
    std::optional<QList<ConnectedDevice>> devices() const override { return QList<ConnectedDevice>(); }
    void refresh() override { }
};

} // namespace ambrelle
