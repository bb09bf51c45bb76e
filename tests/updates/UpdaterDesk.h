// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/recording/RecordingProgramFolder.h"
#include "platform/recording/RecordingReleaseServer.h"
#include "support/WaitUntil.h"
#include "updates/Updater.h"

#include <gmock/gmock.h>

namespace ambrelle {

/// An updater of version 1.4.9 with everything that it asks, all of it going well.
struct UpdaterDesk : testing::Test {
    using Kind = UpdatePhase::Kind;

    UpdaterDesk()
    {
        folder->course.identity = {u"org.ambrelle.Ambrelle"_s, u"1.10"_s};
        server->offer(u"1.10"_s);
        QObject::connect(
            updater.get(), &Updater::changed, updater.get(), [this] { kinds.append(updater->phase().kind); });
    }

    std::unique_ptr<Updater> make(const Updater::Trust& trust)
    {
        return std::make_unique<Updater>(Updater::Collaborators{.settings = settings,
                                             .clock = clock,
                                             .server = server,
                                             .folder = folder,
                                             .isInUse = [this] { return inUse; },
                                             .relaunch = [this] { ++relaunches; }},
            trust, StagedProgram::Identity{u"org.ambrelle.Ambrelle"_s, u"1.4.9"_s});
    }
    /// Waits until nothing is under way; the phase then.
    UpdatePhase settled() const
    {
        EXPECT_TRUE(waitUntil([this] { return !updater->isBusy() || relaunches > 0; }));
        return updater->phase();
    }
    UpdatePhase checked() const
    {
        updater->check();
        return settled();
    }
    UpdatePhase installed() const
    {
        updater->install();
        return settled();
    }

    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings{defaults};
    ManualClock clock;
    std::shared_ptr<RecordingReleaseServer> server = std::make_shared<RecordingReleaseServer>();
    std::shared_ptr<RecordingProgramFolder> folder = std::make_shared<RecordingProgramFolder>();
    bool inUse = false;
    int relaunches = 0;
    const Updater::Trust trust{QUrl(u"https://updates.example/feed.json"_s), {u"one"_s, u"two"_s}};
    std::unique_ptr<Updater> updater = make(trust);
    QList<Kind> kinds; ///< phases, in order
};

} // namespace ambrelle
