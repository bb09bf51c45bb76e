// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace ambrelle {

/// Picture files from outside, which may be anything.
namespace PictureFile {

/// Why the file cannot be shown, as a sentence; empty when it looks like a picture. Reads no more than its beginning.
QString fault(const QString& file);

struct Decoded {
    QImage image; ///< null when it failed
    QString error; ///< one sentence
};

/// The picture, opaque, scaled to fill that many pixels and cut to them in its middle.
Decoded filling(const QString& file, const QSize& size);

} // namespace PictureFile

} // namespace ambrelle
