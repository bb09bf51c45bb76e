// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace ambrelle {

/// Makes a copy of the program that stands anywhere known to the user's desktop: its line in the menu of programs, its
/// icons and its kind of files. Everything written lies below the user's data folder and has the program's name.
class MenuRegistration {
public:
    struct Places {
        QString program; ///< absolute
        QString dataHome; ///< the user's data folder
        QStringList dataFolders; ///< the system's; what lies there is known without being asked for

        static Places standard();
    };
    struct Outcome {
        QStringList files; ///< written or removed
        QString fault; ///< a sentence; empty when all went well
    };

    explicit MenuRegistration(Places places);

    Outcome add() const;
    /// Does nothing to what another copy of the program has registered.
    Outcome remove() const;

private:
    QByteArray entry(const QByteArray& installed) const;
    QString registered() const; ///< the program that the user's entry starts; empty when there is none
    void refresh() const;

    Places m_places;
    QString m_share; ///< what was installed with the program
};

} // namespace ambrelle
