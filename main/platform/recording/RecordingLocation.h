// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LocationSource.h"

namespace ambrelle {

/// A machine that is where a test says.
class RecordingLocation final : public LocationSource {
public:
    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    LocationAuthorization authorization() const override { return m_authorization; }
    void requestLocation() override { ++requests; }

    void setAuthorization(LocationAuthorization authorization) ///< tells changed() if it differs
    {
        if (m_authorization == authorization)
            return;
        m_authorization = authorization;
        Q_EMIT changed();
    }

    int requests = 0; ///< how often a location was asked for; the test answers with the signals

private:
    LocationAuthorization m_authorization = LocationAuthorization::undetermined;
};

} // namespace ambrelle
