// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/ManualClock.h"
#include "platform/LoginItem.h"
#include "platform/Machine.h"
#include "platform/ProgramDoor.h"
#include "platform/ProgramLauncher.h"
#include "platform/recording/RecordingAnnouncer.h"
#include "platform/recording/RecordingAppearance.h"
#include "platform/recording/RecordingCalendarStore.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingDevices.h"
#include "platform/recording/RecordingHttpClient.h"
#include "platform/recording/RecordingInputMonitor.h"
#include "platform/recording/RecordingLocation.h"
#include "platform/recording/RecordingPlayers.h"
#include "platform/recording/RecordingProgramFolder.h"
#include "platform/recording/RecordingReleaseServer.h"
#include "platform/recording/RecordingSessionVisibility.h"
#include "platform/recording/RecordingSources.h"
#include "platform/recording/RecordingWindowHost.h"
#include "platform/recording/RecordingWindowList.h"
#include "platform/TrayPresence.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

/// The programs that a test installs.
class RecordingPrograms final : public ProgramLauncher {
public:
    bool has(const QString& program) const override { return installed.contains(program); }
    void open(const QString& program) override { opened.append(program); }
    QString openFolder(const QString& folder) override
    {
        folders.append(folder);
        return refusal;
    }
    void showInFolder(const QString& file, Done done) override
    {
        shownFiles.append(file);
        done(failure);
    }

    QStringList installed;
    QStringList opened;
    QStringList folders; ///< that were opened
    QString refusal; ///< to open any; empty: none
    QStringList shownFiles;
    QString failure; ///< how showing a file ends; empty: well
};

/// A login item that can be set unless the test says why not.
class RecordingLoginItem final : public LoginItem {
public:
    Status status() const override
    {
        if (!unavailable.isEmpty())
            return Status::unavailable;
        return isEnabled ? Status::enabled : Status::disabled;
    }
    QString whyNot() const override { return unavailable; }
    QString setEnabled(bool enabled) override
    {
        const QString& reason = unavailable.isEmpty() ? failure : unavailable;
        if (!reason.isEmpty())
            return refusal() + u": "_s + reason;
        isEnabled = enabled;
        return {};
    }

    bool isEnabled = false;
    QString unavailable; ///< why there is none, as a sentence; empty: there is one
    QString failure; ///< why it cannot be changed from now on; empty: it can
};

/// A desktop that has a place for tray items once the test sends appeared().
class RecordingTray final : public TrayPresence {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return u"The test has no tray."_s; }
    void start() override { ++starts; }

    int starts = 0;
};

/// A way in from outside through which the test comes itself, by the signals.
class RecordingDoor final : public ProgramDoor {
public:
    bool isAvailable() const override { return opens > 0; }
    QString whyNot() const override { return opens > 0 ? QString() : u"The test has not opened it."_s; }
    void open() override { ++opens; }

    int opens = 0;
};

/// A whole machine in the hands of a test.
class RecordingMachine final : public Machine {
public:
    ManualClock clock;
    RecordingWindowHost windows;
    RecordingWindowList otherWindows;
    RecordingSessionVisibility visibility;
    RecordingInputMonitor input;
    RecordingAppearance appearance;
    RecordingDesktopPicture desktopPicture;
    RecordingTray tray;
    RecordingPrograms programs;
    RecordingLoginItem loginItem;
    RecordingAnnouncer announcer;
    RecordingSources sources;
    RecordingDevices devices;
    RecordingHttpClient http;
    RecordingLocation location;
    RecordingPlayers players;
    RecordingCalendarStore calendars;
    RecordingDoor door;
    QStringList desktopNames;
    std::shared_ptr<RecordingReleaseServer> releases = std::make_shared<RecordingReleaseServer>();
    std::shared_ptr<RecordingProgramFolder> programFolder = std::make_shared<RecordingProgramFolder>();

    Ports ports() override
    {
        return {
            .clock = clock,
            .windows = windows,
            .otherWindows = otherWindows,
            .visibility = visibility,
            .input = input,
            .appearance = appearance,
            .desktopPicture = desktopPicture,
            .trays = {&tray},
            .programs = programs,
            .loginItem = loginItem,
            .announcer = announcer,
            .sources = sources.sources(),
            .devices = {&devices},
            .http = http,
            .location = location,
            .players = players,
            .calendars = calendars,
            .door = door,
            .desktopNames = desktopNames,
            .releases = releases,
            .programFolder = programFolder,
        };
    }
};

} // namespace ambrelle
