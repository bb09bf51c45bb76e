// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace ambrelle {

/// A finished picture as it is kept, a tenth of its pixels' size.
struct PackedPicture {
    QByteArray jpeg; ///< empty: none
    bool isOnDisk = false; ///< so that the bytes may be forgotten
};

/// Finished pictures on the disk, as JPEG, from one run to the next. A new build or a new revision of the wallpapers
/// reads none of the old ones. Any thread may use it.
class ImageDiskCache {
public:
    /// `folder` is made when first written to; `build` is the program's build number.
    ImageDiskCache(QString folder, int build);

    QString url(const QString& key) const;
    /// Decoded; null when the file is missing or damaged.
    static QImage read(const QString& url);
    /// Appears whole or not at all; failures are ignored.
    static void write(const QImage& image, const QString& url);

    /// What is kept of a picture; empty when there is none.
    static QByteArray packed(const QImage& image);
    /// The picture again, quickly drawn; null when the bytes are no picture.
    static QImage unpacked(const QByteArray& jpeg);
    /// The file as it is, where it holds a whole picture of that size.
    static PackedPicture readPacked(const QString& url, QSize pixels);
    /// As write(); tells in the result whether it worked.
    static PackedPicture writePacked(const QByteArray& jpeg, const QString& url);

private:
    QString m_folder;
    int m_build;
};

} // namespace ambrelle
