// SPDX-License-Identifier: MIT

#include "window/frame/Undo.h"

#include "foundation/Clock.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr double undoTime = 8; // seconds

} // namespace

UndoKeeper::UndoKeeper(Clock& clock)
    : m_clock(clock)
{
}

UndoKeeper::~UndoKeeper() = default;

int UndoKeeper::offer(Undo undo)
{
    m_end.reset();
    m_undo = std::move(undo);
    const int number = ++m_offers;
    m_left = undoTime;
    run();
    Q_EMIT changed();
    return number;
}

void UndoKeeper::fail(const QString& sentence, std::function<void()> tryAgain)
{
    tell({.sentence = sentence, .tryAgain = std::move(tryAgain)});
}

void UndoKeeper::failPicture(const QString& sentence, std::function<void()> tryAgain)
{
    tell({.sentence = sentence, .tryAgain = std::move(tryAgain), .isOfPicture = true});
}

void UndoKeeper::tell(Failure failure)
{
    m_failure = std::move(failure);
    run();
    Q_EMIT changed();
}

QString UndoKeeper::text() const
{
    return m_failure ? m_failure->sentence : m_undo ? m_undo->text : QString();
}

void UndoKeeper::undo()
{
    if (!canUndo())
        return;
    const Undo undo = *std::exchange(m_undo, std::nullopt);
    run();
    Q_EMIT changed();
    if (undo.revert)
        undo.revert();
}

void UndoKeeper::tryAgain()
{
    if (!m_failure)
        return;
    const Failure failure = *std::exchange(m_failure, std::nullopt);
    run();
    Q_EMIT changed();
    if (failure.tryAgain)
        failure.tryAgain();
}

void UndoKeeper::dismiss()
{
    if (!isShown())
        return;
    if (m_failure)
        m_failure.reset();
    else
        m_undo.reset();
    run();
    Q_EMIT changed();
}

void UndoKeeper::makeFinal()
{
    if (!std::exchange(m_undo, std::nullopt))
        return;
    run();
    Q_EMIT changed();
}

void UndoKeeper::beginPicture()
{
    makeFinal();
    if (m_failure && m_failure->isOfPicture)
        dismiss();
}

void UndoKeeper::setHeld(bool held)
{
    if (std::exchange(m_held, held) != held)
        run();
}

/// Lets the time run or stand still, as things are now.
void UndoKeeper::run()
{
    if (m_end)
        m_left = std::max(0.0, m_left - (m_clock.elapsed() - m_since));
    m_end.reset();
    if (!canUndo() || m_held)
        return;
    m_since = m_clock.elapsed();
    m_end = m_clock.after(std::chrono::milliseconds(qRound(m_left * 1000)), [this] { makeFinal(); });
}

} // namespace ambrelle
