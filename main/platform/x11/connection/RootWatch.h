// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <QObject>

#include <optional>

class QSocketNotifier;

namespace ambrelle {

/// Hears what changes on the root window and on others' windows, on a connection of its own: there its choice of events
/// cannot disturb the toolkit's, and errors about windows that have gone are nobody's concern. Costs nothing while
/// nothing changes.
class RootWatch final : public QObject {
    Q_OBJECT
public:
    ~RootWatch() override;

    bool open(const X11Connection& sibling); ///< false when the server takes no further connection
    const X11Connection& connection() const { return *m_connection; } ///< only once open
    /// Handles events that arrived together with an answer. Every reader of answers on connection() calls it
    /// afterwards, since such events no longer wake the event loop.
    void drain();

    /// From now on, or no longer, windowChanged() tells of that window.
    void follow(xcb_window_t window, bool on) const;
    /// From now on, or no longer, orderChanged() is told.
    void followOrder(bool on);
    /// Whether the server's screen saver, which also stands for those that use it, has blanked the screen.
    bool isBlanked() const { return m_blanked; }

Q_SIGNALS:
    void propertyChanged(xcb_atom_t name); ///< of the root window
    /// A followed window moved, appeared or vanished (`property` is none then), or a property of it changed.
    void windowChanged(xcb_window_t window, xcb_atom_t property);
    void windowGone(xcb_window_t window); ///< a followed one
    /// A child of the root window appeared, moved or changed its place among the others; often several times in a row.
    void orderChanged();
    void compositorChanged();
    void blankedChanged();

private:
    void select();
    void selectCompositor();
    void selectScreenSaver();
    void hear(const xcb_generic_event_t& event);
    void hearWindow(uint8_t type, const xcb_generic_event_t& event);
    void setBlanked(bool blanked);

    std::optional<X11Connection> m_connection;
    QSocketNotifier* m_notifier = nullptr;
    uint8_t m_selectionEvent = 0;
    uint8_t m_screenSaverEvent = 0;
    bool m_blanked = false;
};

} // namespace ambrelle
