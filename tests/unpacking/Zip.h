// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace ambrelle::test {

/// A file or folder of an archive, and what its two headers say of it.
struct ZipItem {
    QByteArray name;
    QByteArray content{};
    unsigned mode = 0100644; ///< with the kind, as Unix has it
    std::optional<QByteArray> localName{}; ///< in the header before the content, when that says something else
    std::optional<quint32> toldBytes{}; ///< likewise, in both
    std::optional<quint32> toldChecksum{};
    int system = 3; ///< Unix; 0 has no modes
    int method = 8; ///< 0: as it is, 8: deflated; else the name of a method that is not used
    int flags = 0;
    bool hasDescriptor = false; ///< sizes come after the content
    bool hasWideSizes = false; ///< 64 bits each
    std::optional<quint64> toldWideBytes{};
    QByteArray centralExtra{};
};

/// A folder of nothing but itself.
ZipItem zipFolder(const QByteArray& name);
ZipItem zipLink(const QByteArray& name, const QByteArray& target);

/// What stands around the items.
struct ZipFrame {
    QByteArray before{};
    QByteArray after{};
    int repeats = 1; ///< of the list at the end
};

QByteArray zipOf(const QList<ZipItem>& items, const ZipFrame& frame = {});

/// A small program, as it should be.
QList<ZipItem> goodItems();

} // namespace ambrelle::test
