// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

#include <QList>
#include <QPointer>

#include <functional>

namespace ambrelle {

class WidgetController;

/// Lets widgets appear on the screen and go from it. As many as a usual desktop has do so at once, and what is beyond
/// them a few at a time, lest a huge desktop hold everything else up.
class WidgetStage {
public:
    static constexpr int atOnce = 24;

    /// `enters` is called for each widget right before it appears.
    WidgetStage(Clock& clock, std::function<void(WidgetController&)> enters);

    void bring(WidgetController* widget); ///< to be shown by play()
    /// To be closed and deleted by play(); until then it lives and is nobody else's.
    void dismiss(WidgetController* widget);
    void play(); ///< those that go first, each in the order they were given

private:
    void turn(int most);
    bool waits();

    Clock& m_clock;
    std::function<void(WidgetController&)> m_enters;
    QList<WidgetController*> m_coming;
    QList<WidgetController*> m_leaving;
    QList<QPointer<WidgetController>> m_unpainted; // of the last turn
    int m_pauses = 0;
    Ticket m_next;
};

} // namespace ambrelle
