// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace ambrelle {

/// What the program is asked to do.
struct CommandLine {
    enum class Mode {
        desktop,
        renderPreviews,
        renderWallpapers,
        renderWindow,
        renderInterface,
        checkUpdate,
        exportSite,
        enterMenu,
        leaveMenu,
        help,
        version,
        unknownOption,
        unknownAction,
    };

    Mode mode = Mode::desktop;
    QString folder; ///< where a batch mode writes
    QStringList files; ///< theme files handed to the desktop, as given
    QString action; ///< what the desktop is to do, by the name of a QuickAction
    QString option; ///< the unknown one, or the unknown action; an empty one was not given
    bool isRestored = false; ///< the desktop starts it with the rest of an earlier session

    bool operator==(const CommandLine&) const = default;

    bool isBatch() const; ///< makes pictures and ends

    /// `arguments` without the program's name. Options are exact words; the first one that asks for a mode wins. A
    /// batch mode that comes last, without its folder, is ignored. Of actions the last one counts. After "--"
    /// everything is a file. What a session manager adds when it starts a program again is understood.
    static CommandLine parse(const QStringList& arguments);
    static QString helpText();
    static QString unknownOptionText(const QString& option);
    static QString unknownActionText(const QString& action);
};

} // namespace ambrelle
