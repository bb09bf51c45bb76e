// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "model/RawEnum.h"

#include <QObject>

namespace ambrelle {

class Announcer;
class AppSettings;
class UserDefaults;

enum class FocusPhase { focus, shortBreak, longBreak };

struct FocusPhaseRow {
    FocusPhase value;
    QLatin1StringView raw;
    const char* title;
};

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array focusPhaseRows = std::to_array<FocusPhaseRow>({
    {FocusPhase::focus, "focus"_L1, QT_TRANSLATE_NOOP("ambrelle", "Focus")},
    {FocusPhase::shortBreak, "shortBreak"_L1, QT_TRANSLATE_NOOP("ambrelle", "Break")},
    {FocusPhase::longBreak, "longBreak"_L1, QT_TRANSLATE_NOOP("ambrelle", "Long break")},
});
} // namespace tables

template <> inline constexpr auto rawRows<FocusPhase> = tables::focusPhaseRows;

/// Periods of work, each followed by a break, a long one after every fourth. Breaks begin by themselves, work waits for
/// the user. The end of a period is announced, and the periods of work finished on a day are counted and stored.
class FocusTimer : public QObject {
    Q_OBJECT
public:
    using Phase = FocusPhase;

    static constexpr int sessionsPerRound = 4; ///< the last of them is followed by a long break

    FocusTimer(Announcer& announcer, AppSettings& settings, UserDefaults& defaults, Clock& clock);

    /// Pauses the running period, or starts or resumes the current one.
    void toggle();
    void start();
    void pause();
    /// Back to a whole period of work that is not running; the count stays.
    void reset();
    /// Goes on to the next period, not running. A period of work that was skipped does not count.
    void skip();
    /// A length changed in the settings: what is not running is a whole period again, what runs keeps its end.
    void durationsChanged();
    /// A period under way, for pictures; it stands still.
    void loadPreviewData();

    Phase phase() const { return m_now.phase; }
    bool isRunning() const { return m_now.endDate.has_value(); }
    /// When the running period ends.
    const std::optional<QDateTime>& endDate() const { return m_now.endDate; }
    /// Seconds of the period left at that moment; not below 0 while it runs.
    double remaining(const QDateTime& at) const;
    /// The part of the period that is over at that moment, 0 to 1.
    double progress(const QDateTime& at) const;
    /// Periods of work finished today; until the first one of a day is, those of the day before.
    int completedToday() const { return m_now.completedToday; }
    /// Seconds of a whole period of that kind, as the settings say; 0 or less when they make no sense.
    double duration(Phase phase) const;

Q_SIGNALS:
    void changed(); ///< any of the values above; while running every second

private:
    struct State {
        Phase phase = Phase::focus;
        std::optional<QDateTime> endDate;
        double remaining = 0; // seconds, while not running
        int completedToday = 0;

        bool operator==(const State&) const = default;
    };

    void run();
    void setEnd();
    void halt();
    void tick();
    void followClock();
    void advance(bool finished);
    void recordCompletion();
    void announce(Phase finished);
    void publish();

    int storedCount(const QString& day) const;

    Announcer& m_announcer;
    AppSettings& m_settings;
    UserDefaults& m_defaults;
    Clock& m_clock;
    State m_now;
    State m_published;
    QDateTime m_seenTime; // the wall clock at the last look
    double m_seenElapsed = 0; // and the steady one
    Ticket m_ticker;
};

} // namespace ambrelle
