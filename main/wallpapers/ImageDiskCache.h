// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace ambrelle {

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

private:
    QString m_folder;
    int m_build;
};

} // namespace ambrelle
