#pragma once

#include "platform/LocationSource.h"

namespace ambrelle {

/// A machine that must not tell where it is.
class HeadlessLocation final : public LocationSource {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode asks nobody where the machine is."); }
    LocationAuthorization authorization() const override { return LocationAuthorization::denied; }
    void requestLocation() override { }
};

} // namespace ambrelle
