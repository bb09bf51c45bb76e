// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <memory>

namespace ambrelle {

/// A machine of which nothing can be measured, for the modes that render and exit.
class HeadlessSources {
public:
    HeadlessSources();
    ~HeadlessSources();

    SystemSources sources() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace ambrelle
