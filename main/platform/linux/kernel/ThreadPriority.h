// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// Lowers the priority of the calling thread, and of threads it starts from now on, for good.
void lowerThreadPriority();

} // namespace ambrelle
