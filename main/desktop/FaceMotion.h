// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "foundation/Clock.h"

namespace ambrelle {

/// Decides when the moving parts of a face, or of a scene, are drawn again. After every drawing it waits for the next
/// moment of the part that is due first; nothing wakes up while motion is paused or a burst is over.
class FaceMotion {
public:
    using Areas = QList<Canvas::MovingArea>;

    /// `repaint` is given a part of the face, in face points.
    FaceMotion(Clock& clock, std::function<void(const QRectF&)> repaint);

    void setActive(bool active);
    bool isActive() const { return m_active; }
    /// Seconds since 2001-01-01 00:00 UTC; 0, the printed frame, while paused.
    double time() const;
    /// The face was drawn inside `painted` (face points) and has these moving parts.
    void drawn(const Areas& areas, const QRectF& painted);

private:
    struct Part {
        Canvas::MovingArea area;
        double due; ///< on the clock that never jumps
    };

    void schedule();
    void frame();

    Clock& m_clock;
    std::function<void(const QRectF&)> m_repaint;
    bool m_active = false;
    QList<Part> m_parts;
    Ticket m_next;
};

} // namespace ambrelle
