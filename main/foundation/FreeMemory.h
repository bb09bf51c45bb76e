// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// Gives the system back what the program has freed and would keep for later. Worth it after something large went for
/// a long time. Does nothing until a host told how that is done.
void giveBackFreeMemory();

/// `way` does what giveBackFreeMemory() promises.
void setGiveBackFreeMemory(void (*way)());

} // namespace ambrelle
