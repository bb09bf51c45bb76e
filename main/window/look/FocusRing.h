// SPDX-License-Identifier: MIT

#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace ambrelle {

/// The ring around the control that has the focus. It shows once the keyboard moved it: after Tab, a shortcut or an
/// arrow key, and goes with the next click.
class FocusRing final : public QObject {
public:
    static FocusRing& shared(); ///< of all windows; needs the application object

    /// Whether what has the focus is to be marked; who draws a mark within itself asks before.
    bool isShown() const { return m_shown; }

    /// How far the ring reaches beyond a control, points.
    static int reach();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    FocusRing();

    void show(bool shown);
    void follow();

    bool m_shown = false;
    QPointer<QFocusFrame> m_frame; // dies with the window it lies in
};

} // namespace ambrelle
