// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/update/FolderJournal.h"

#include <QString>

namespace ambrelle {

/// What becomes of an update at the starts that follow it. A program that took the place of another is on probation
/// until it was confirmed: should it crash before, the other gets its place back.
namespace Probation {

/// What a start has to do when it finds a journal.
enum class Step {
    clear, ///< nothing came of the update, or somebody else replaced the program since
    tellRejection, ///< this is the former version again: the newer one did not get through its first start
    watch, ///< this is the newer version, in one of its first starts
    rollBack, ///< this is the newer version, and it did not get through its first starts
};
Step nextStep(const FolderJournal& journal, const QString& version);

struct Found {
    enum class What {
        nothing,
        leftovers, ///< settle() removes them
        rejection, ///< likewise, once the rejected version was noted
        newcomer, ///< to be confirmed
    };
    What what = What::nothing;
    QString version; ///< the rejected one
};

/// Looks what an update has left beside the folder of `program`, the running program file, which has that version. Does
/// not return where the former version is brought back: the process becomes that one, with the same arguments. Call it
/// before there are threads, and by the one process only that is to show widgets.
Found begin(const QString& program, const QString& version, char** arguments);

/// The running version has proved itself: nothing leads back any more. False: things are as they were.
bool confirm(const QString& program, const QString& version);
/// Confirms it, where that is not done yet, and removes what the update has left. Blocks; any thread may call it.
/// False: that is still to be done.
bool settle(const QString& program, const QString& version);
/// The former version gets its place back, where the newer one is on probation and has had so many starts: a later one
/// is judged by itself. False: there is none, or that did not work.
bool undo(const QString& program, int attempt = 0);
/// The folder of the former version, which waits to come back; empty when none does.
QString formerOf(const QString& program);

/// The process becomes the program, with these arguments, the first its name; without any when there are none. It
/// returns only when that fails.
void become(const QString& program, char** arguments = nullptr);

} // namespace Probation

} // namespace ambrelle
