// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxSystem.h"

#include "foundation/BackgroundThread.h"
#include "foundation/FreeMemory.h"
#include "platform/linux/kernel/HeapTrim.h"
#include "platform/linux/kernel/RunningProgram.h"
#include "platform/linux/kernel/ThreadPriority.h"

namespace ambrelle {

LinuxSystem::LinuxSystem(const Machine::Wishes& wishes, const MakeDesktopPicture& hostsPicture)
    : session(DesktopSession::current())
    , calendars(clock,
          CalendarPlaces{.folders = FolderCalendarStore::standardFolders(),
              .added = wishes.calendarFolders,
              .keepAdded = wishes.keepCalendarFolders,
              .addresses = wishes.addresses})
    , programs(session.names())
    , loginItem(runningProgram())
    , desktopPicture(chooseDesktopPicture(session, wishes.noteFolder, hostsPicture))
    , programFolder(LinuxProgramFolder::ofRunningProgram(wishes.rejectedVersion))
{
    QObject::connect(&routes, &RouteWatch::wayOutCame, &http, &HttpClient::networkCame);
    setYieldToOthers(lowerThreadPriority);
    returnLargeBlocks();
    setGiveBackFreeMemory(trimHeap);
}

Machine::Ports LinuxSystem::ports(const WindowPorts& shown)
{
    return {
        .clock = clock,
        .windows = shown.windows,
        .otherWindows = shown.otherWindows,
        .visibility = shown.visibility,
        .input = shown.input,
        .appearance = appearance,
        .desktopPicture = *desktopPicture,
        .trays = shown.trays,
        .programs = programs,
        .loginItem = loginItem,
        .announcer = announcer,
        .sources = sources.sources(),
        .devices = {&bluetooth, &power},
        .http = http,
        .location = location,
        .players = players,
        .calendars = calendars,
        .door = door,
        .desktopNames = session.names(),
        .releases = releases,
        .programFolder = programFolder,
    };
}

} // namespace ambrelle
