// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QPointF>

#include <functional>
#include <optional>

namespace ambrelle {

/// What the user does with the pointer outside this program's windows, and how long ago they did anything at all. Takes
/// nothing away from other programs and never sees what is typed. Available if it tells at least when the last input
/// was.
class InputMonitor : public Port {
    Q_OBJECT
public:
    /// Seconds; nothing when the machine cannot tell.
    using Answer = std::function<void(std::optional<double> seconds)>;

    /// Whether the session tells clicks and the pointer's travel. For certain after start(); before that, a guess.
    virtual bool tellsPointer() const = 0;

    virtual void start() = 0; ///< does nothing when started
    virtual void stop() = 0;
    /// The time since the last input of any kind, in any window. The answer comes on this thread, at once or later,
    /// unless `context` is gone by then.
    virtual void secondsSinceInput(QObject* context, Answer answer) = 0;
    /// On the main display.
    virtual double metresPerPoint() const = 0;

    static constexpr double usualMetresPerPoint = 0.0002;
    /// The usual value where either width is 0 or unknown.
    static constexpr double metresPerPoint(double widthInMillimetres, double widthInPoints)
    {
        const bool known = widthInMillimetres > 0 && widthInPoints > 0;
        return known ? widthInMillimetres / widthInPoints / 1000 : usualMetresPerPoint;
    }

Q_SIGNALS:
    void clicked(); ///< the left or the right button went down
    /// The pointer moved to that global point, with or without a button held. Travel at speed comes in steps of a tenth
    /// of a second.
    void moved(const QPointF& point);
};

} // namespace ambrelle
