// SPDX-License-Identifier: MIT

#include "desktop/WidgetStage.h"

#include "desktop/WidgetController.h"

namespace ambrelle {

namespace {

constexpr int perTurn = 4;
constexpr std::chrono::milliseconds turnPause{5}; // in which those that came are painted

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
    turn(atOnce);
}

void WidgetStage::turn(int most)
{
    for (int i = 0; i < most && !m_leaving.isEmpty(); ++i) {
        WidgetController* widget = m_leaving.takeFirst();
        widget->close();
        widget->deleteLater(); // it may be in the middle of telling that its button was pressed
    }
    for (int i = 0; i < most && m_leaving.isEmpty() && !m_coming.isEmpty(); ++i) {
        WidgetController* widget = m_coming.takeFirst();
        m_enters(*widget);
        widget->show();
    }
    const bool isDone = m_leaving.isEmpty() && m_coming.isEmpty();
    m_next = isDone ? Ticket() : m_clock.after(turnPause, [this] { turn(perTurn); });
}

} // namespace ambrelle
