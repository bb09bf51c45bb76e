// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

namespace ambrelle {

/// A machine at the moment of the samples that tells nothing else, and shows windows on another one.
class SampleMachine final : public Machine {
public:
    explicit SampleMachine(std::unique_ptr<Machine> shown);

    Ports ports() override;

private:
    std::unique_ptr<Machine> m_shown;
    std::unique_ptr<Machine> m_still;
};

} // namespace ambrelle
