// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

namespace ambrelle {

/// Registers what empties one of the running thread's caches.
void addKept(std::function<void()> clear);

/// Empties the caches of the running thread that are `Kept`, and the toolkit's of its fonts. Nothing may hold a
/// reference into one of them, as a picture that is being drawn does; what is wanted again is made again.
void forgetKept();

/// A cache with `clear()` that drawing keeps for the next time, for a thread_local variable.
template <typename Cache> class Kept : public Cache {
public:
    template <typename... Arguments>
    explicit Kept(Arguments&&... arguments)
        : Cache(std::forward<Arguments>(arguments)...)
    {
        addKept([this] { this->clear(); });
    }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
};

} // namespace ambrelle
