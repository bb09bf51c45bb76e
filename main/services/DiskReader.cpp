// SPDX-License-Identifier: MIT

#include "services/DiskReader.h"

namespace ambrelle {

DiskReader::DiskReader(VolumeSource& source)
    : m_source(source)
{
}

QList<DiskInfo> DiskReader::read()
{
    QList<DiskInfo> disks;
    const auto volumes = m_source.volumes();
    for (const auto& volume : volumes) {
        if (!volume.browsable.value_or(false) || volume.total.value_or(0) < 1)
            continue;
        DiskInfo disk;
        disk.name = volume.name.value_or(volume.path.section(u'/', -1, -1, QString::SectionSkipEmpty));
        disk.path = volume.path;
        disk.total = *volume.total;
        disk.free = volume.availableForImportantUsage.value_or(volume.available.value_or(0));
        disk.isRoot = volume.isRoot.value_or(false);
        disks.append(disk);
    }
    std::stable_sort(disks.begin(), disks.end(),
        [](const DiskInfo& a, const DiskInfo& b) { return a.isRoot != b.isRoot ? a.isRoot : a.name < b.name; });
    return disks;
}

} // namespace ambrelle
