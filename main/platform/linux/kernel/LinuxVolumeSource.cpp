// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxVolumeSource.h"

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"
#include "platform/linux/kernel/MountParser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

LinuxVolumeSource::LinuxVolumeSource(const QByteArray& procFolder, const QByteArray& devFolder)
    : m_mounts(procFolder + "/self/mountinfo")
    , m_labelFolder(devFolder + "/disk/by-label")
{
    m_available = m_mounts.read().has_value();
    connect(&m_slowSizes, &SlowVolumeSizes::appeared, this, &LinuxVolumeSource::changed);
    watchMounts();
}

LinuxVolumeSource::~LinuxVolumeSource()
{
    qDeleteAll(findChildren<QSocketNotifier*>());
    if (m_watched >= 0)
        ::close(m_watched);
}

QString LinuxVolumeSource::whyNot() const
{
    return m_available ? QString() : Wording::tr("The kernel does not tell what is mounted.");
}

QList<Volume> LinuxVolumeSource::volumes()
{
    QList<Volume> volumes;
    const auto text = m_mounts.read();
    m_available = text.has_value();
    if (!text)
        return volumes;

    QSet<QByteArray> slowPaths;
    const auto labelOf = labels();
    const auto mounts = browsableMounts(parseMounts(*text));
    for (const auto& mount : mounts) {
        const bool isRoot = mount.path == "/";
        // The first volume is wanted at once, and when the root hangs everything does.
        const bool isSlow = !isRoot && mayBeSlow(mount);
        if (isSlow)
            slowPaths.insert(mount.path);
        const auto size = isSlow ? m_slowSizes.size(mount.path) : sizeOfVolume(mount.path);
        if (!size)
            continue;
        Volume volume;
        const auto label = labelOf.value(QFileInfo(QFile::decodeName(mount.source)).canonicalFilePath());
        if (!label.isEmpty())
            volume.name = foreignText(label);
        else if (isRoot)
            volume.name = u"System"_s;
        volume.path = QFile::decodeName(mount.path);
        volume.browsable = true;
        volume.total = size->total;
        volume.available = size->available;
        volume.isRoot = isRoot;
        volumes.append(volume);
    }
    for (const auto& gone : m_slowPaths - slowPaths)
        m_slowSizes.forget(gone);
    m_slowPaths = slowPaths;
    return volumes;
}

void LinuxVolumeSource::watchMounts()
{
    m_watched = ::open(m_mounts.path().constData(), O_RDONLY | O_CLOEXEC);
    if (m_watched < 0)
        return;
    // The kernel reports a changed mount table as an exceptional condition, once per change.
    auto* notifier = new QSocketNotifier(m_watched, QSocketNotifier::Exception, this);
    connect(notifier, &QSocketNotifier::activated, this, &LinuxVolumeSource::changed);
}

QHash<QString, QString> LinuxVolumeSource::labels() const
{
    QHash<QString, QString> labels;
    const auto links =
        QDir(QFile::decodeName(m_labelFolder)).entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot);
    for (const auto& link : links) {
        const auto device = link.canonicalFilePath();
        if (!device.isEmpty())
            labels.insert(device, QString::fromUtf8(decodeLabel(QFile::encodeName(link.fileName()))));
    }
    return labels;
}

} // namespace ambrelle
