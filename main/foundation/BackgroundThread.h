#pragma once

namespace ambrelle {

/// Lets the machine's other work go before that of the calling thread, and of threads it starts from now on. For
/// threads whose work can wait a moment; there is no way back.
void yieldToOthers();

} // namespace ambrelle
