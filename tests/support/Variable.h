// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

namespace ambrelle::test {

/// Gives a variable of the environment another value for a while.
class Variable {
public:
    Variable(const char* name, const QByteArray& value)
        : m_name(name)
        , m_old(qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt)
    {
        qputenv(name, value);
    }
    ~Variable()
    {
        if (m_old)
            qputenv(m_name, *m_old);
        else
            qunsetenv(m_name);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* m_name;
    std::optional<QByteArray> m_old;
};

} // namespace ambrelle::test
