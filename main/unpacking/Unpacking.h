// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace ambrelle {

/// Told of the bytes that are unpacked, and of how many it will be.
using UnpackingProgress = std::function<void(std::int64_t done, std::int64_t all)>;

/// Unpacks the zip archive in an open file into an open, empty folder, which becomes the working folder of the process.
/// Modes are made plain; owners, times and attributes are not taken over. Every header is read before the first byte is
/// written. Gives the reason of a refusal, what was written until then stays; empty: all of it is on the disk.
std::string unpack(int file, int folder, const UnpackingProgress& progress = {});

} // namespace ambrelle
