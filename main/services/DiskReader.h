// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <algorithm>

namespace ambrelle {

/// A volume on which a user keeps files.
struct DiskInfo {
    QString name;
    QString path; ///< where it is mounted; tells volumes apart
    qint64 total = 0; ///< bytes
    qint64 free = 0; ///< bytes
    bool isRoot = false;

    const QString& id() const { return path; }
    qint64 used() const { return std::max<qint64>(total - free, 0); } ///< bytes
    double usedFraction() const
    {
        return total >= 1 ? static_cast<double>(used()) / static_cast<double>(total) : 0;
    } ///< 0 to 1
    bool operator==(const DiskInfo&) const = default;
};

class DiskReader {
public:
    explicit DiskReader(VolumeSource& source);

    /// The root volume first, then by name.
    QList<DiskInfo> read();

private:
    VolumeSource& m_source;
};

} // namespace ambrelle
