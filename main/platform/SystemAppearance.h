#pragma once

#include <QObject>
#include <QString>

namespace ambrelle {

/// Whether the desktop is in its light or its dark appearance.
class SystemAppearance : public QObject {
    Q_OBJECT
public:
    virtual bool isAvailable() const = 0; ///< false while nothing tells the appearance; light then
    virtual QString whyNot() const = 0; ///< one sentence, empty while available
    virtual bool isDark() const = 0;

Q_SIGNALS:
    void changed(); ///< isDark() gives another answer than before
};

} // namespace ambrelle
