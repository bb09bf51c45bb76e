// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace ambrelle {

/// Pictures from outside, which may be huge, damaged or hostile. Any thread may decode.
namespace PictureDecoder {

inline constexpr qint64 mostBytes = 64LL * 1024 * 1024; ///< of a file
inline constexpr qint64 mostPixels = 200LL * 1000 * 1000; ///< of a picture that can be scaled down row by row
inline constexpr qint64 mostWholePixels = 32LL * 1000 * 1000; ///< of one that has to be decoded whole
inline constexpr int mostPasses = 100; ///< over the whole picture

/// Whether the file begins as a picture does, whatever follows. Reads no more of it than that.
bool isPicture(const QString& file);
/// The picture turned upright and scaled down to cover `shown` (pixels), never up, in a format that is quickly drawn;
/// null when it is no picture, or too much of one.
QImage read(const QString& file, QSize shown);
/// Likewise of bytes that nobody chose: only what pictures on the web are, JPEG, PNG, WebP and GIF, by their content.
/// Other formats never see them.
QImage decode(const QByteArray& bytes, QSize shown);
/// Likewise of a picture of the program's own.
QImage covering(const QImage& picture, QSize shown);

} // namespace PictureDecoder

} // namespace ambrelle
