// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/VolumeSizes.h"

#include <mutex>
#include <system_error>
#include <thread>

#include <sys/statvfs.h>

namespace ambrelle {

/// What the threads know of the object that waits for them: one may outlive it by hours.
struct SlowVolumeSizes::Owner {
    std::mutex mutex;
    SlowVolumeSizes* object = nullptr; // null once it is gone
};

std::optional<VolumeSize> sizeOfVolume(const QByteArray& path)
{
    struct statvfs info { };
    if (::statvfs(path.constData(), &info) != 0)
        return std::nullopt;
    const auto unit = static_cast<qint64>(info.f_frsize);
    VolumeSize size;
    // A server may claim any number of blocks.
    if (__builtin_mul_overflow(static_cast<qint64>(info.f_blocks), unit, &size.total)
        || __builtin_mul_overflow(static_cast<qint64>(info.f_bavail), unit, &size.available))
        return std::nullopt;
    return size;
}

SlowVolumeSizes::SlowVolumeSizes()
    : m_owner(std::make_shared<Owner>())
{
    m_owner->object = this;
}

SlowVolumeSizes::~SlowVolumeSizes()
{
    const std::lock_guard lock(m_owner->mutex);
    m_owner->object = nullptr;
}

std::optional<VolumeSize> SlowVolumeSizes::size(const QByteArray& path)
{
    auto& entry = m_entries[path];
    if (!entry.asked) {
        const auto ask = [owner = m_owner, path] {
            const auto size = sizeOfVolume(path);
            const std::lock_guard lock(owner->mutex);
            if (auto* object = owner->object)
                QMetaObject::invokeMethod(
                    object, [object, path, size] { object->answered(path, size); }, Qt::QueuedConnection);
        };
        try {
            std::thread(ask).detach();
            entry.asked = true;
        } catch (const std::system_error&) { // no threads to be had: asked again next time
        }
    }
    return entry.size;
}

void SlowVolumeSizes::forget(const QByteArray& path)
{
    m_entries.remove(path);
}

void SlowVolumeSizes::answered(const QByteArray& path, std::optional<VolumeSize> size)
{
    const auto found = m_entries.find(path);
    if (found == m_entries.end())
        return;
    const bool isFirst = size && !found->size;
    *found = {size, false};
    if (isFirst)
        Q_EMIT appeared();
}

} // namespace ambrelle
