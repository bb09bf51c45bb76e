// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <QObject>

#include <functional>
#include <optional>

namespace ambrelle {

class Clock;

/// Something that was done, and how it is taken back.
struct Undo {
    QString text; ///< a line that says what was done
    std::function<void()> revert;
};

/// Something that could not be done.
struct Failure {
    QString sentence;
    std::function<void()> tryAgain; ///< empty: that makes no sense
    bool isOfPicture = false; ///< for the screens
};

/// What the bar at the window's foot says: the last thing that can be taken back, for eight seconds, or a failure until
/// it is closed. A failure covers what can be undone, whose time stands still meanwhile.
class UndoKeeper final : public QObject {
    Q_OBJECT
public:
    explicit UndoKeeper(Clock& clock);
    ~UndoKeeper() override;

    /// Makes what was offered before final. Gives the number of the offer.
    int offer(Undo undo);
    bool stillOffers(int number) const { return m_undo && m_offers == number; }
    void fail(const QString& sentence, std::function<void()> tryAgain = {});
    /// The same for a picture that does not come to the screens: shown until the next one is ordered.
    void failPicture(const QString& sentence, std::function<void()> tryAgain = {});

    bool isShown() const { return m_undo || m_failure; }
    const Failure* failure() const { return m_failure ? &*m_failure : nullptr; } ///< null: none is shown
    bool canUndo() const { return m_undo && !m_failure; }
    QString text() const; ///< that is shown; empty without

    void undo(); ///< nothing while !canUndo()
    void tryAgain();
    void dismiss(); ///< what is shown
    /// What could be undone; failures stay. Whatever changes something says so when it begins: what was offered before
    /// must not be taken for its way back.
    void makeFinal();
    /// The same where a picture is ordered, or the desktop that it was for: the failure of an earlier one goes too,
    /// since to try that again would put it over this one.
    void beginPicture();

    /// Time stands still while somebody is about to use the bar.
    void setHeld(bool held);

Q_SIGNALS:
    void changed();

private:
    void tell(Failure failure);
    void run();

    Clock& m_clock;
    std::optional<Undo> m_undo;
    int m_offers = 0; // so far
    std::optional<Failure> m_failure;
    bool m_held = false;
    double m_left = 0; // seconds, when time began to run or stood still
    double m_since = 0;
    Ticket m_end;
};

} // namespace ambrelle
