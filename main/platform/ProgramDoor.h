// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QStringList>

namespace ambrelle {

/// Where other programs of the user's session ask for something by this program's name. A token, which may be empty, is
/// what the desktop gave the asking one, so that a window opened for it may take the focus.
class ProgramDoor : public Port {
    Q_OBJECT
public:
    /// Begins to listen, without blocking. Once available others find this program by its name; where the name is
    /// taken, or nobody can be found by name, nobody comes, and that is all.
    virtual void open() = 0;

Q_SIGNALS:
    void activated(const QString& token); ///< the program shall show itself
    void filesGiven(const QStringList& files, const QString& token); ///< absolute paths on this machine, maybe none
    void actionWanted(const QString& name, const QString& token); ///< of any name
};

} // namespace ambrelle
