// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <string_view>

namespace ambrelle {

struct Mount {
    QByteArray device; ///< "major:minor" of the file system
    QByteArray root; ///< the folder of the file system that is mounted
    QByteArray path; ///< where it is mounted
    QByteArray type;
    QByteArray source; ///< a device file, a network address or a mere word

    bool operator==(const Mount&) const = default;
};

/// The lines of /proc/self/mountinfo in their order; damaged ones are left out.
QList<Mount> parseMounts(std::string_view text);

/// The mounts a user would call a volume: "/", whatever it is, and file systems on devices and over the network, each
/// once and where it is mounted highest up. Left out are the kernel's own file systems, the start-up partitions, and
/// what package systems and containers mount for themselves.
QList<Mount> browsableMounts(const QList<Mount>& mounts);

/// Whether asking for its size may wait for a network, another program or a slow reading of the whole device.
bool mayBeSlow(const Mount& mount);

/// Turns the \x20 of names below /dev/disk/by-label into what they stand for.
QByteArray decodeLabel(const QByteArray& name);

} // namespace ambrelle
