#pragma once

#include <QObject>
#include <QString>

namespace ambrelle {

/// Whether anybody can see the desktop: not while the screen is locked or blanked.
class SessionVisibility : public QObject {
    Q_OBJECT
public:
    virtual bool isAvailable() const = 0;
    virtual QString whyNot() const = 0; ///< one sentence, empty while available

    virtual bool isVisible() const = 0; ///< true while nothing says otherwise

Q_SIGNALS:
    void changed();
};

} // namespace ambrelle
