// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

namespace ambrelle {

/// The picture (Format_RGB888) as a PNG file, written for speed: one filter for all rows, and a fast, light compression
/// (W3C: Portable Network Graphics, third edition). Empty when there is no memory for it.
QByteArray encodedAsPng(const QImage& picture);

} // namespace ambrelle
