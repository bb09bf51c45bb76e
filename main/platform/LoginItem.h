#pragma once

#include <QString>

namespace ambrelle {

/// Whether the program is started when the user logs in.
class LoginItem {
public:
    enum class Status { enabled, disabled, unavailable };

    virtual ~LoginItem() = default;

    virtual Status status() const = 0; ///< as the system has it now, whoever set it
    virtual QString whyNot() const = 0; ///< one sentence while unavailable, else empty

    /// Empty on success; else a sentence that begins with refusal() and goes on with the reason.
    virtual QString setEnabled(bool enabled) = 0;

    static QString refusal() { return QStringLiteral("Couldn't change the login item"); }
};

} // namespace ambrelle
