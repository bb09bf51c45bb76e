// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>

#include <memory>
#include <optional>

namespace ambrelle {

struct VolumeSize {
    qint64 total = 0; ///< bytes
    qint64 available = 0; ///< bytes, to an ordinary user

    bool operator==(const VolumeSize&) const = default;
};

/// Nothing when `path` is no mounted file system any more. May wait as long as the file system likes.
std::optional<VolumeSize> sizeOfVolume(const QByteArray& path);

/// Asks volumes that may be slow for their sizes, each on a thread of its own: a server that went away holds up neither
/// the program nor the other volumes, and is not asked again before it answered.
class SlowVolumeSizes final : public QObject {
    Q_OBJECT
public:
    SlowVolumeSizes();
    ~SlowVolumeSizes() override;

    /// The latest answer, nothing before the first one; asks anew.
    std::optional<VolumeSize> size(const QByteArray& path);
    void forget(const QByteArray& path);

Q_SIGNALS:
    void appeared(); ///< a volume answered for the first time

private:
    struct Owner;
    void answered(const QByteArray& path, std::optional<VolumeSize> size);

    struct Entry {
        std::optional<VolumeSize> size;
        bool asked = false;
    };
    std::shared_ptr<Owner> m_owner;
    QHash<QByteArray, Entry> m_entries;
};

} // namespace ambrelle
