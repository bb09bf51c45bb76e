// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

namespace ambrelle {

class ProcessReader {
public:
    explicit ProcessReader(ProcessSource& source);

    /// Gives up to `count` rows in the source's order, perhaps before this returns; an empty list when processes cannot
    /// be listed here.
    void top(int count, ProcessSource::Completion completion);

private:
    ProcessSource& m_source;
};

} // namespace ambrelle
