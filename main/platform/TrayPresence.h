#pragma once

#include <QObject>
#include <QString>

namespace ambrelle {

/// Whether the desktop has a place for tray items.
class TrayPresence : public QObject {
    Q_OBJECT
public:
    virtual bool isAvailable() const = 0;
    virtual QString whyNot() const = 0; ///< one sentence, empty while available

    /// Begins to look, without blocking; appeared() comes later if there is a place, or as soon as there is.
    virtual void start() = 0;

Q_SIGNALS:
    void appeared();
};

} // namespace ambrelle
