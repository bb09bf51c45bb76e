// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace ambrelle {

/// What the toolkit is told before the application object exists, and untold afterwards.
class Environment {
public:
    /// `plugin`: the toolkit's platform plugin to run on.
    explicit Environment(const QByteArray& plugin);

    /// The platform plugin that the user asks for; empty: none in particular.
    static QByteArray wishedPlugin();
    /// The variables that child processes inherit are the user's again.
    void restore() const;

private:
    struct Variable {
        const char* name;
        QByteArray value; ///< null: it was not set
    };

    void put(const char* name, const QByteArray& value);

    QList<Variable> m_replaced;
};

} // namespace ambrelle
