// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace ambrelle {

class WorkFolder;

/// What is noted before a newer program takes the place of the running one, until it has proved itself. Which version
/// then stands at the place tells on which side of the exchange things are.
struct FolderJournal {
    QString from; ///< versions
    QString to;
    QString copy; ///< below the work folder: where the one of the two is that has not the place
    int attempts = 0; ///< starts of the newer one so far
    bool isRejected = false; ///< the newer one did not get through its first start
    bool isConfirmed = false; ///< it did, but what the user has in the former one's folder could not be kept elsewhere

    bool operator==(const FolderJournal&) const = default;

    /// None: there is none, or it cannot be understood.
    static std::optional<FolderJournal> read(const WorkFolder& folder);
    /// Whole or not at all, and on the disk when this gives true.
    bool write(const WorkFolder& folder) const;
    static bool remove(const WorkFolder& folder);
};

} // namespace ambrelle
