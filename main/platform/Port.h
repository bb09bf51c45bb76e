// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace ambrelle {

/// Something that the program asks of a system: it is there, or it is missing for a reason that can be told.
class Port : public QObject {
    Q_OBJECT
public:
    virtual bool isAvailable() const = 0;
    virtual QString whyNot() const = 0; ///< one sentence, empty while available

Q_SIGNALS:
    /// Some answer of the port is another than before, as far as the port tells that without being asked.
    void changed();
};

} // namespace ambrelle
