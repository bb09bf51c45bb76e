// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <array>
#include <optional>

namespace ambrelle {

/// The newest version of a settings file that need not be on the disk yet, kept beside it. Two files take turns and are
/// overwritten in place: a process that is killed while it writes one leaves the other whole, and nothing waits for a
/// file system's directory. A version carries a checksum, so that one cut short by a power cut is not taken for whole.
class SettingsJournal {
public:
    /// Which contents of the settings file a version is newer than: the hash of the file, `noFile` when there is none.
    using Predecessors = std::array<QByteArray, 2>;
    static constexpr const char* noFile = "-";
    static QByteArray hash(const QByteArray& file);

    /// Of the settings file at `path`.
    explicit SettingsJournal(QString path);

    struct Version {
        QJsonObject values;
        Predecessors follows;
    };
    /// Nothing when no whole version is there. Call it before the first write().
    std::optional<Version> newest();
    /// The values hold when the process ends, however it does, as soon as this returns. Gives the reason of a failure
    /// as the system words it, and then the version before stays the newest; empty on success.
    QString write(const QJsonObject& values, const Predecessors& follows);
    void remove(); ///< the settings file holds the newest version

private:
    QString name(int slot) const;

    QString m_path;
    quint64 m_serial = 0; // of the newest version
    int m_slot = 1; // that holds it
};

} // namespace ambrelle
