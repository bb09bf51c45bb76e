// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <QObject>

namespace ambrelle {

/// Whether something blends translucent windows with what lies below them.
class CompositorWatch final : public QObject {
    Q_OBJECT
public:
    explicit CompositorWatch(const X11Connection& connection);

    bool isActive() const { return m_active; }
    void refresh(); ///< looks again, waiting once for the server

Q_SIGNALS:
    void changed();

private:
    bool look() const;

    const X11Connection& m_connection;
    bool m_active;
};

} // namespace ambrelle
