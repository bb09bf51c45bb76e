#pragma once

#include "platform/x11/X11Connection.h"

#include <QObject>

#include <optional>

class QSocketNotifier;

namespace ambrelle {

/// Hears what changes on the root window, on a connection of its own: there its choice of events cannot disturb the
/// toolkit's, and errors about windows that have gone are nobody's concern. Costs nothing while nothing changes.
class RootWatch final : public QObject {
    Q_OBJECT
public:
    ~RootWatch() override;

    bool open(const X11Connection& sibling); ///< false when the server takes no further connection
    const X11Connection& connection() const { return *m_connection; } ///< only once open
    /// Handles events that arrived together with an answer. Every reader of answers on connection() calls it
    /// afterwards, since such events no longer wake the event loop.
    void drain();

Q_SIGNALS:
    void propertyChanged(xcb_atom_t name);
    void compositorChanged();

private:
    void select();

    std::optional<X11Connection> m_connection;
    QSocketNotifier* m_notifier = nullptr;
    uint8_t m_selectionEvent = 0;
};

} // namespace ambrelle
