// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

namespace ambrelle {

template <auto destroy> struct Destroyed {
    template <typename T> void operator()(T* object) const { destroy(object); }
};

/// Owns an object of the compositor's; `destroy` takes it back.
template <typename T, auto destroy> using Handle = std::unique_ptr<T, Destroyed<destroy>>;

} // namespace ambrelle
