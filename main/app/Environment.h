#pragma once

#include <QByteArray>
#include <QList>
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

private:
    struct Variable {
        const char* name;
        QByteArray value; ///< null: it was not set
    };

    void put(const char* name, const QByteArray& value);

    bool m_batch;
    QList<Variable> m_replaced;
};

} // namespace ambrelle
