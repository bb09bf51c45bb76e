// SPDX-License-Identifier: MIT

#include "updates/Updater.h"

#include "foundation/BackgroundThread.h"
#include "model/AppSettings.h"

#include <QStringView>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace ambrelle {

namespace {

constexpr int httpOk = 200;

/// Digits and nothing else: a library would take signs, blanks and the digits of other scripts too.
std::uint64_t numberOf(QStringView piece)
{
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    std::uint64_t number = 0;
    for (const QChar letter : piece) {
        if (letter < u'0' || letter > u'9')
            return 0;
        const auto digit = static_cast<std::uint64_t>(letter.unicode() - u'0');
        if (number > (most - digit) / 10)
            return 0;
        number = number * 10 + digit;
    }
    return number;
}

QString ageOf(qint64 seconds)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    if (seconds < minute)
        return Wording::tr("just now");
    if (seconds < hour)
        return Wording::tr("%n minutes ago", nullptr, static_cast<int>(seconds / minute));
    if (seconds < day)
        return Wording::tr("%n hours ago", nullptr, static_cast<int>(seconds / hour));
    return Wording::tr("%n days ago", nullptr, static_cast<int>(seconds / day));
}

/// What came of a dry run. What it unpacked stays.
QString outcomeOf(const ReleaseIntake::Taken& taken, const QString& version)
{
    if (taken.error)
        return Wording::tr("Failed: %1").arg(taken.error->message);
    taken.program->keep();
    return Wording::tr("Version %1 downloaded, verified and unpacked at %2").arg(version, taken.program->folder());
}

} // namespace

bool Updater::isNewer(const QString& version, const QString& current)
{
    const auto offered = QStringView(version).split(u'.', Qt::SkipEmptyParts);
    const auto known = QStringView(current).split(u'.', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < std::max(offered.size(), known.size()); ++i) {
        const std::uint64_t left = numberOf(offered.value(i));
        const std::uint64_t right = numberOf(known.value(i));
        if (left != right)
            return left > right;
    }
    return false;
}

Updater::Updater(Collaborators with, Trust trust, StagedProgram::Identity running)
    : m_settings(with.settings)
    , m_clock(with.clock)
    , m_isInUse(std::move(with.isInUse))
    , m_relaunch(std::move(with.relaunch))
    , m_intake{std::move(with.server), std::move(with.folder), std::move(trust.keys), std::move(running)}
    , m_feed(std::move(trust.feed))
    , m_enabled(isSecureAddress(m_feed) && !m_intake.keys.isEmpty() && m_intake.server && m_intake.folder)
{
}

Updater::~Updater()
{
    m_stop.request_stop();
}

std::optional<Release> Updater::available() const
{
    return m_latest && isNewer(m_latest->version, currentVersion()) ? m_latest : std::nullopt;
}

QString Updater::status() const
{
    const QString version = m_latest ? m_latest->version : QString();
    switch (m_phase.kind) {
    case Phase::Kind::idle: return Wording::tr("Checks the website for new versions");
    case Phase::Kind::checking: return Wording::tr("Checking…");
    case Phase::Kind::upToDate:
        return m_lastChecked ? Wording::tr("Up to date · checked %1").arg(ageOf(m_lastChecked->secsTo(m_clock.now())))
                             : Wording::tr("Up to date");
    case Phase::Kind::available: return Wording::tr("Version %1 is available").arg(version);
    case Phase::Kind::downloading: return Wording::tr("Downloading version %1…").arg(version);
    case Phase::Kind::installing: return Wording::tr("Installing…");
    case Phase::Kind::failed: return m_phase.message;
    }
    return {};
}

void Updater::setPhase(const Phase& phase)
{
    m_phase = phase;
    Q_EMIT changed();
}

void Updater::start()
{
    if (!isEnabled())
        return;
    m_first = m_clock.after(firstCheck, [this] { checkInBackground(); });
    m_periodic = m_clock.every(period, [this] { checkInBackground(); });
}

bool Updater::mayInstallUnasked() const
{
    return m_settings.installUpdates() && !m_settings.editing() && !m_isInUse();
}

void Updater::checkInBackground()
{
    if (!m_settings.checkForUpdates())
        return;
    lookUp([this] {
        if (m_phase.kind == Phase::Kind::available && mayInstallUnasked() && m_latest != m_hopeless
            && m_latest->version != m_intake.folder->rejectedVersion())
            install(true);
    });
}

void Updater::check()
{
    lookUp([] {});
}

void Updater::lookUp(std::function<void()> then)
{
    if (!isEnabled() || isBusy())
        return;
    setPhase({Phase::Kind::checking});
    m_worker.run(
        [server = m_intake.server, feed = m_feed, stop = m_stop.get_token()] { return server->feed(feed, stop); },
        [this, then = std::move(then)](const FeedAnswer& answer) {
            hear(answer);
            then();
        });
}

void Updater::hear(const FeedAnswer& answer)
{
    if (!answer.arrived) {
        setPhase(Phase::failed(UpdateError::unreachable()));
        return;
    }
    auto release = answer.status == httpOk ? Release::decode(answer.body) : std::nullopt;
    if (!release) {
        setPhase(Phase::failed(UpdateError::wrongAnswer()));
        return;
    }
    m_latest = std::move(release);
    m_lastChecked = m_clock.now();
    setPhase({available() ? Phase::Kind::available : Phase::Kind::upToDate});
}

void Updater::takeIn(const Release& release, ProgramFolder::Purpose purpose, std::function<void(const Taken&)> then)
{
    setPhase({Phase::Kind::downloading});
    m_worker.run(
        [intake = m_intake, release, purpose, stop = m_stop.get_token()] {
            yieldToOthers(); // to whatever is drawn meanwhile
            return std::make_shared<ReleaseIntake::Taken>(intake.take(release, purpose, stop));
        },
        std::move(then));
}

void Updater::install()
{
    install(false);
}

void Updater::install(bool unasked)
{
    const std::optional<Release> release = available();
    if (!isEnabled() || isBusy() || !release)
        return;
    takeIn(*release, ProgramFolder::Purpose::update, [this, unasked, release = *release](const Taken& taken) {
        if (taken->error) {
            if (taken->error == UpdateError::otherRelease() || taken->error == UpdateError::notVerified())
                m_hopeless = release;
            setPhase(Phase::failed(*taken->error));
        } else if (unasked && !mayInstallUnasked()) { // the download took its time
            drop(taken);
            setPhase({Phase::Kind::available});
        } else {
            exchange(taken, release);
        }
    });
}

void Updater::exchange(const Taken& taken, const Release& release)
{
    setPhase({Phase::Kind::installing});
    m_worker.run([intake = m_intake, taken,
                     version = release.version] { return intake.exchange(std::move(taken->program), version); },
        [this, release](const std::optional<UpdateError>& error) {
            if (!error) {
                m_relaunch();
                return;
            }
            if (error == UpdateError::notInstalled())
                m_hopeless = release;
            setPhase(Phase::failed(*error));
        });
}

/// What it has on the disk takes a moment to go.
void Updater::drop(const Taken& taken)
{
    m_worker.run(
        [taken] {
            taken->program.reset();
            return true;
        },
        [](bool) {});
}

void Updater::dryRun(std::function<void(const QString&)> done)
{
    if (!isEnabled()) {
        done(Wording::tr("This copy of Ambrelle doesn't update itself (this is %1)").arg(currentVersion()));
        return;
    }
    if (isBusy()) {
        done(statusWithVersion());
        return;
    }
    lookUp([this, done = std::move(done)] {
        if (m_phase.kind == Phase::Kind::failed) {
            done(Wording::tr("Failed: %1").arg(m_phase.message));
            return;
        }
        const std::optional<Release> release = available();
        if (!release) {
            done(statusWithVersion());
            return;
        }
        takeIn(
            *release, ProgramFolder::Purpose::rehearsal, [this, done, version = release->version](const Taken& taken) {
                const QString line = outcomeOf(*taken, version);
                setPhase(taken->error ? Phase::failed(*taken->error) : Phase{Phase::Kind::available});
                done(line);
            });
    });
}

QString Updater::statusWithVersion() const
{
    return Wording::tr("%1 (this is %2)").arg(status(), currentVersion());
}

} // namespace ambrelle
