// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// Lets the machine's other work go before that of the calling thread, and of threads it starts from now on. For
/// threads whose work can wait a moment; there is no way back. Does nothing until a host told how that is done.
void yieldToOthers();

/// `way` does for the calling thread what yieldToOthers() promises.
void setYieldToOthers(void (*way)());

} // namespace ambrelle
