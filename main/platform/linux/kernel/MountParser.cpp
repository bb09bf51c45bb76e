// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/MountParser.h"

#include "foundation/TextFields.h"

#include <algorithm>
#include <array>
#include <string>

namespace ambrelle {

namespace {

// File systems without a device of their own on which users keep files nevertheless.
constexpr std::array deviceless{"nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "virtiofs", "vboxsf", "zfs", "ceph",
    "afs", "fuse.sshfs", "fuse.rclone", "fuse.vmhgfs-fuse", "fuse.s3fs", "fuse.davfs", "davfs", "fuse.glusterfs",
    "fuse.mergerfs"};
// Their size stands in memory once they are mounted.
constexpr std::array quick{
    "ext2", "ext3", "ext4", "xfs", "btrfs", "f2fs", "bcachefs", "zfs", "jfs", "ntfs3", "overlay", "tmpfs"};
constexpr std::array hiddenFolders{"/boot", "/efi", "/proc", "/sys", "/dev", "/etc", "/usr", "/sysroot", "/snap",
    "/var/snap", "/var/lib/snapd", "/var/lib/flatpak", "/var/lib/docker", "/var/lib/containers", "/var/lib/containerd",
    "/var/lib/kubelet", "/var/lib/lxd", "/var/lib/waydroid"};

template <class List> bool contains(const List& list, const QByteArray& word)
{
    return std::find(list.begin(), list.end(), word) != list.end();
}

/// Reads a backslash and what follows as a number, wherever exactly `digits` digits of `base` follow `lead`.
QByteArray unescaped(std::string_view text, std::string_view lead, std::size_t digits, int base)
{
    QByteArray result;
    while (!text.empty()) {
        const auto number = text.substr(std::min(lead.size(), text.size()), digits);
        int value = 0;
        const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value, base);
        const bool whole = number.size() == digits && end == number.data() + digits && error == std::errc();
        if (text.starts_with(lead) && whole && value > 0 && value < 256) {
            result.append(static_cast<char>(value));
            text.remove_prefix(lead.size() + digits);
        } else {
            result.append(text.front());
            text.remove_prefix(1);
        }
    }
    return result;
}

/// Blanks, tabs, line ends and backslashes stand as \040 and the like.
QByteArray takePath(std::string_view& line)
{
    return unescaped(takeField(line), "\\", 3, 8);
}

std::optional<Mount> parseMount(std::string_view line)
{
    Mount mount;
    takeField(line); // identity
    takeField(line); // of the mount it is in
    mount.device = takePath(line);
    mount.root = takePath(line);
    mount.path = takePath(line);
    while (!line.empty() && takeField(line) != "-") { } // options, as many as there are
    mount.type = takePath(line);
    mount.source = takePath(line);
    const bool whole =
        mount.device.contains(':') && mount.root.startsWith('/') && mount.path.startsWith('/') && !mount.type.isEmpty();
    return whole ? std::optional(mount) : std::nullopt;
}

bool isWithin(const QByteArray& path, const QByteArray& folder)
{
    return path == folder || path.startsWith(folder + '/');
}

bool isHidden(const QByteArray& path)
{
    if (isWithin(path, "/run"))
        return !isWithin(path, "/run/media");
    return std::any_of(
        hiddenFolders.begin(), hiddenFolders.end(), [&path](const char* each) { return isWithin(path, each); });
}

bool isBrowsable(const Mount& mount)
{
    if (mount.path == "/")
        return mount.type != "rootfs";
    if (isHidden(mount.path) || mount.type == "squashfs" || mount.type == "erofs")
        return false;
    // A folder or file of a volume that is mounted elsewhere; only btrfs mounts parts of itself as a matter of course.
    if (mount.root != "/" && mount.type != "btrfs" && mount.type != "9p")
        return false;
    return mount.source.startsWith("/dev/") || contains(deviceless, mount.type);
}

/// Equal for all mounts that show the same space.
QByteArray spaceOf(const Mount& mount)
{
    if (mount.type == "zfs") // every file system of a pool draws on the pool
        return "zfs:" + mount.source.split('/').constFirst();
    return mount.source.startsWith("/dev/") && mount.type == "btrfs" ? mount.source : mount.device;
}

bool isHigher(const Mount& a, const Mount& b)
{
    return a.path != "/" && (b.path == "/" || b.path.size() < a.path.size());
}

} // namespace

QList<Mount> parseMounts(std::string_view text)
{
    QList<Mount> mounts;
    while (!text.empty()) {
        if (const auto mount = parseMount(takeLine(text)))
            mounts.append(*mount);
    }
    return mounts;
}

QList<Mount> browsableMounts(const QList<Mount>& mounts)
{
    QList<Mount> chosen;
    const auto remove = [&chosen](const QByteArray& path) {
        chosen.removeIf([&path](const Mount& each) { return each.path == path; });
    };
    for (const auto& mount : mounts) {
        remove(mount.path); // what was mounted there before is covered now
        if (!isBrowsable(mount))
            continue;
        const auto same = std::find_if(chosen.begin(), chosen.end(),
            [space = spaceOf(mount)](const Mount& each) { return spaceOf(each) == space; });
        if (same == chosen.end())
            chosen.append(mount);
        else if (isHigher(*same, mount))
            *same = mount;
    }
    return chosen;
}

bool mayBeSlow(const Mount& mount)
{
    return !contains(quick, mount.type);
}

QByteArray decodeLabel(const QByteArray& name)
{
    return unescaped(std::string_view(name.constData(), static_cast<std::size_t>(name.size())), "\\x", 2, 16);
}

} // namespace ambrelle
