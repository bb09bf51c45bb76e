// SPDX-License-Identifier: MIT

#pragma once

#include "platform/headless/HeadlessDesktop.h"
#include "platform/headless/HeadlessPorts.h"
#include "platform/headless/HeadlessSources.h"
#include "platform/headless/HeadlessWindowHost.h"
#include "platform/Machine.h"

namespace ambrelle {

/// A machine that shows and tells nothing but the time.
class HeadlessMachine final : public Machine {
public:
    explicit HeadlessMachine(std::unique_ptr<Clock> clock);
    ~HeadlessMachine() override;

    Ports ports() override;

private:
    std::unique_ptr<Clock> m_clock;
    HeadlessWindowHost m_windows;
    HeadlessDesktop m_desktop;
    HeadlessSources m_sources;
    HeadlessPorts m_live;
};

} // namespace ambrelle
