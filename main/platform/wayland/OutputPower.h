// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SessionVisibility.h"
#include "platform/wayland/connection/WaylandConnection.h"

#include <wlr-output-power-management-unstable-v1-client-protocol.h>

#include <map>

class QScreen;

namespace ambrelle {

/// Whether any output is on, where the compositor tells: a desktop on dark ones is not seen.
class OutputPower final : public SessionVisibility {
    Q_OBJECT
public:
    /// None: there is no compositor to tell.
    explicit OutputPower(const WaylandConnection* connection);
    ~OutputPower() override;

    bool isAvailable() const override { return m_manager != nullptr; }
    QString whyNot() const override;
    bool isVisible() const override { return m_visible; }

private:
    struct Output;

    void follow(QScreen* screen);
    void setOn(Output& output, bool on);
    void update();

    Handle<zwlr_output_power_manager_v1> m_manager;
    std::map<QScreen*, std::unique_ptr<Output>> m_outputs;
    bool m_visible = true;
};

} // namespace ambrelle
