// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

namespace ambrelle {

/// Turns tick counters into the busy share of the time since the previous reading.
class CPUReader {
public:
    struct Reading {
        double total = 0; ///< 0 to 1, all processors together
        QList<double> perCore; ///< 0 to 1 each, in the kernel's order
    };

    explicit CPUReader(ProcessorSource& source);

    /// Zeros at first and whenever the number of processors changed; no processors when the source does not answer.
    Reading read();

private:
    ProcessorSource& m_source;
    QList<ProcessorTicks> m_previous;
};

} // namespace ambrelle
