// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace ambrelle {

class Announcer;
class CalendarStore;
class Clock;
class DesktopPicture;
class DeviceSource;
class HttpClient;
class InputMonitor;
class LocationSource;
class LoginItem;
class PlayerSource;
class ProgramDoor;
class ProgramFolder;
class ProgramLauncher;
class ReleaseServer;
class SessionVisibility;
class SystemAppearance;
class TrayPresence;
class WindowHost;
class WindowList;

/// All that the program asks of the computer and the desktop it runs on. One host, one machine.
class Machine {
public:
    /// What a host has to know of the program and its user.
    struct Wishes {
        QStringList calendarFolders; ///< looked at besides the usual ones
        std::function<void(const QStringList& folders)> keepCalendarFolders{}; ///< called when the user changes them
        QStringList addresses; ///< the user's, of mail: tells which invitations were declined
        QString noteFolder; ///< exists; takes notes on what the desktop itself cannot tell
        QString rejectedVersion{}; ///< of the program: it did not get through its first start here
    };

    /// Every port there is. They live as long as the machine; nothing is opened or asked before somebody asks them.
    struct Ports {
        Clock& clock;
        WindowHost& windows;
        WindowList& otherWindows;
        SessionVisibility& visibility;
        InputMonitor& input;
        SystemAppearance& appearance;
        DesktopPicture& desktopPicture;
        QList<TrayPresence*> trays; ///< the program's item goes into whichever appears first
        ProgramLauncher& programs;
        LoginItem& loginItem;
        Announcer& announcer;
        SystemSources sources;
        QList<DeviceSource*> devices; ///< the best first
        HttpClient& http;
        LocationSource& location;
        PlayerSource& players;
        CalendarStore& calendars;
        ProgramDoor& door;
        QStringList desktopNames; ///< of the running desktop, from the special to the general; may be empty
        std::shared_ptr<ReleaseServer> releases{}; ///< none: nobody offers newer programs
        std::shared_ptr<ProgramFolder> programFolder{}; ///< likewise
    };

    Machine() = default;
    virtual ~Machine() = default;
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    virtual Ports ports() = 0;
};

} // namespace ambrelle
