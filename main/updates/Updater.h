// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "foundation/SerialWorker.h"
#include "updates/ReleaseIntake.h"
#include "updates/UpdatePhase.h"

#include <QObject>

namespace ambrelle {

class AppSettings;

/// Keeps the program current: looks at the feed twice a day and when the user asks, and puts a newer release into the
/// place of the running program. Network and disk are waited for on another thread, and at the end nothing is. Main
/// thread only.
class Updater : public QObject {
    Q_OBJECT
public:
    using Phase = UpdatePhase;

    static constexpr std::chrono::seconds firstCheck{30}; ///< after start()
    static constexpr std::chrono::seconds period{43'200};

    /// Whom to believe about new releases.
    struct Trust {
        QUrl feed;
        QStringList keys; ///< of whom releases may be signed, public
    };
    struct Collaborators {
        AppSettings& settings;
        Clock& clock;
        std::shared_ptr<ReleaseServer> server; ///< may be null, as the folder may
        std::shared_ptr<ProgramFolder> folder;
        std::function<bool()> isInUse; ///< the program, so that it must not restart unasked
        std::function<void()> relaunch; ///< a newer program has taken the place of this one
    };

    /// `running` is this program.
    Updater(Collaborators collaborators, Trust trust, StagedProgram::Identity running);
    ~Updater() override;

    /// Whether it is known where newer releases are, who makes them and where to put them. Otherwise nothing below does
    /// anything.
    bool isEnabled() const { return m_enabled; }
    const Phase& phase() const { return m_phase; }
    bool isBusy() const { return m_phase.isBusy(); }
    /// What the feed said last; it may be no newer than this program.
    const std::optional<Release>& latest() const { return m_latest; }
    const std::optional<QDateTime>& lastChecked() const { return m_lastChecked; }
    const QString& currentVersion() const { return m_intake.running.version; }
    std::optional<Release> available() const; ///< the latest release when it is newer than this program
    /// One line on how things stand at this moment.
    QString status() const;

    /// Compares dotted numbers piece by piece; what is missing, or is no number, counts as 0. Equal ones are not newer.
    static bool isNewer(const QString& version, const QString& current);

    /// Begins to check now and then, if the user wishes it.
    void start();
    /// As start() does: a release is installed without asking when the user wishes that too and nobody uses the
    /// program, unless it was tried and did not start, or failed in a way in which it would fail again.
    void checkInBackground();
    /// Both do nothing while something is under way.
    void check();
    void install(); ///< what is available(), as the user commands; at its end the program restarts
    /// Checks, and takes a newer release in without installing it. `done` gets a line on what came of it.
    void dryRun(std::function<void(const QString& line)> done);

Q_SIGNALS:
    void changed(); ///< the phase, with all that is told above

private:
    using Taken = std::shared_ptr<ReleaseIntake::Taken>; // on its way between the threads

    void setPhase(const Phase& phase);
    void lookUp(std::function<void()> then);
    void hear(const FeedAnswer& answer);
    void takeIn(const Release& release, ProgramFolder::Purpose purpose, std::function<void(const Taken&)> then);
    void install(bool unasked);
    void exchange(const Taken& taken, const Release& release);
    void drop(const Taken& taken);
    bool mayInstallUnasked() const;
    QString statusWithVersion() const;

    AppSettings& m_settings;
    Clock& m_clock;
    const std::function<bool()> m_isInUse;
    const std::function<void()> m_relaunch;
    const ReleaseIntake m_intake;
    const QUrl m_feed;
    const bool m_enabled;
    Phase m_phase;
    std::optional<Release> m_latest;
    std::optional<QDateTime> m_lastChecked;
    std::optional<Release> m_hopeless; // failed for a reason that does not go away, and is not tried unasked again
    Ticket m_first;
    Ticket m_periodic;
    std::stop_source m_stop;
    SerialWorker m_worker{*this};
};

} // namespace ambrelle
