// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <stop_token>

namespace ambrelle {

/// A newer program on its way from a downloaded archive to the place of the running one. What it has put on the disk
/// goes with it, unless it was kept or has taken its place. Every function blocks, is called on a thread of its own,
/// and returns within a tenth of a second once it is asked to stop.
class StagedProgram {
public:
    /// Who has signed an archive, and what it has to be.
    struct Seal {
        QByteArray signature; ///< in the format of minisign
        QStringList keys; ///< any of these public keys will do
        QString comment; ///< what the signature says that it signs
    };
    enum class Opened {
        done,
        otherRelease, ///< rightly signed, but it is something else
        refused,
    };
    /// What the information file of an unpacked program says.
    struct Identity {
        QString identifier;
        QString version;

        bool operator==(const Identity&) const = default;
    };

    virtual ~StagedProgram() = default;

    /// An empty file without a name, for the archive; -1 when none could be made.
    virtual int archive() = 0;
    /// Checks the seal of the archive, then unpacks it: nothing is read of what is not sealed.
    virtual Opened open(const Seal& seal, const std::stop_token& stop) = 0;
    /// None: there is no program of this kind in what was unpacked.
    virtual std::optional<Identity> identity() const = 0;
    /// Whether the unpacked program starts on this machine and says that it has that version.
    virtual bool starts(const QString& version, const std::stop_token& stop) = 0;
    /// Where it was unpacked.
    virtual QString folder() const = 0;
    /// It stays on the disk.
    virtual void keep() = 0;
    /// Takes the place of the running program, at once and whole or not at all; `from` and `to` are the versions. From
    /// then on there has to be a relaunch.
    virtual bool exchange(const QString& from, const QString& to) = 0;
};

/// The folder that holds the running program and everything that belongs to it, where a newer one can take its place.
class ProgramFolder {
public:
    enum class Purpose {
        update, ///< beside the folder, so that it can take its place
        rehearsal, ///< in the system's folder for temporary files
    };

    virtual ~ProgramFolder() = default;

    /// Where a newer program would have to be written; empty when this program does not stand in a folder of its own.
    virtual QString parent() const = 0;
    virtual bool isWritable() const = 0;
    /// Waits until the last update has proved itself, as it does soon or not at all: before, there can be no other.
    /// Blocks, for a thread of its own.
    virtual void awaitSettled(const std::stop_token& stop) const = 0;
    /// Blocks, for a thread of its own. None: the place is taken, or not safe.
    virtual std::unique_ptr<StagedProgram> stage(Purpose purpose) = 0;
    /// A version that was installed here and did not get through its first start; empty when there is none.
    virtual QString rejectedVersion() const = 0;
};

} // namespace ambrelle
