#pragma once

#include <QString>

namespace ambrelle {

/// What the toolkit is told before the application object exists, and untold afterwards.
class Environment {
public:
    /// `batch`: no display is needed.
    explicit Environment(bool batch);

    /// Why no window can be shown; empty when one can.
    QString whyNoDisplay() const;
    /// The variables that child processes inherit are the user's again.
    void restore() const;

    /// The desktops that the session names, as the session gave them ("GNOME", "ubuntu:GNOME", …).
    const QByteArray& currentDesktop() const { return m_currentDesktop; }

private:
    bool m_batch;
    bool m_hadCurrentDesktop;
    QByteArray m_currentDesktop;
};

} // namespace ambrelle
