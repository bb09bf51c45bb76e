// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace ambrelle {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// An answer or event of the X server, which the C library allocates; null after an error.
template <typename T> struct Reply : std::unique_ptr<T, FreeReply> {
    explicit Reply(T* reply)
        : std::unique_ptr<T, FreeReply>(reply)
    {
    }
};

/// Set in the type of an event that another client made up.
inline constexpr std::uint8_t sentByClient = 0x80;

} // namespace ambrelle
