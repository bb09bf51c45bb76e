// SPDX-License-Identifier: MIT

#pragma once

#include <xcb/xcb.h>

#include <QImage>

#include <algorithm>

namespace ambrelle {

/// Hands an image to `send(pixels, bytes, row, count)` in bands of whole rows that each fit one request, the first row
/// first, for as long as that gives true. Gives what the last call gave.
template <typename Send> bool sendInBands(xcb_connection_t* connection, const QImage& image, Send send)
{
    constexpr uint32_t requestHead = 64; // more than the fields before the pixels take
    const auto rowBytes = static_cast<uint32_t>(image.bytesPerLine());
    const uint32_t room = xcb_get_maximum_request_length(connection) * 4 - requestHead;
    const int rows = std::max(1, static_cast<int>(room / rowBytes));
    bool goesOn = true;
    for (int row = 0; row < image.height() && goesOn; row += rows) {
        const int count = std::min(rows, image.height() - row);
        goesOn = send(image.constScanLine(row), rowBytes * static_cast<uint32_t>(count), row, count);
    }
    return goesOn;
}

} // namespace ambrelle
