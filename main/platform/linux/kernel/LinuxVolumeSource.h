// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/KeptFile.h"
#include "platform/linux/kernel/VolumeSizes.h"
#include "platform/SystemSources.h"

#include <QSet>

namespace ambrelle {

/// The volumes in /proc/self/mountinfo, named by the labels in /dev/disk/by-label.
class LinuxVolumeSource final : public VolumeSource {
public:
    explicit LinuxVolumeSource(const QByteArray& procFolder = "/proc", const QByteArray& devFolder = "/dev");
    ~LinuxVolumeSource() override;

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    QList<Volume> volumes() override;

private:
    void watchMounts();
    QHash<QString, QString> labels() const;

    KeptFile m_mounts;
    QByteArray m_labelFolder;
    SlowVolumeSizes m_slowSizes;
    QSet<QByteArray> m_slowPaths;
    int m_watched = -1;
    bool m_available = true;
};

} // namespace ambrelle
