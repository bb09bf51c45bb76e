// SPDX-License-Identifier: MIT

#include "desktop/WidgetStage.h"

#include "desktop/WidgetController.h"

namespace ambrelle {

namespace {

constexpr int perTurn = 6;
constexpr std::chrono::milliseconds turnPause{1};
constexpr int mostPauses = 100; // that the last ones may take to be painted: what is covered never is

} // namespace

WidgetStage::WidgetStage(Clock& clock, std::function<void(WidgetController&)> enters)
    : m_clock(clock)
    , m_enters(std::move(enters))
{
}

void WidgetStage::bring(WidgetController* widget)
{
    m_coming.append(widget);
}

void WidgetStage::dismiss(WidgetController* widget)
{
    m_coming.removeOne(widget);
    m_leaving.append(widget);
}

void WidgetStage::play()
{
    m_unpainted.clear();
    turn(atOnce);
}

/// Whether those that came last are still to be painted. Were others to come meanwhile, they would all be painted in
/// one go at last, and hold the rest of the program up.
bool WidgetStage::waits()
{
    m_unpainted.removeIf([](const QPointer<WidgetController>& widget) { return !widget || widget->isPainted(); });
    return !m_unpainted.isEmpty() && ++m_pauses < mostPauses;
}

void WidgetStage::turn(int most)
{
    if (m_leaving.isEmpty() && waits()) {
        m_next = m_clock.after(turnPause, [this, most] { turn(most); });
        return;
    }
    m_unpainted.clear();
    m_pauses = 0;
    for (int i = 0; i < most && !m_leaving.isEmpty(); ++i) {
        WidgetController* widget = m_leaving.takeFirst();
        widget->close();
        widget->deleteLater(); // it may be in the middle of telling that its button was pressed
    }
    for (int i = 0; i < most && m_leaving.isEmpty() && !m_coming.isEmpty(); ++i) {
        WidgetController* widget = m_coming.takeFirst();
        m_enters(*widget);
        widget->show();
        m_unpainted.append(widget);
    }
    const bool isDone = m_leaving.isEmpty() && m_coming.isEmpty();
    m_next = isDone ? Ticket() : m_clock.after(turnPause, [this] { turn(perTurn); });
}

} // namespace ambrelle
