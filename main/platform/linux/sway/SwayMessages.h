// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <optional>

namespace ambrelle {

struct SwayMessage {
    quint32 type = 0;
    QByteArray body; ///< JSON, or at least meant to be

    bool operator==(const SwayMessage&) const = default;
};

/// Cuts what comes from Sway's socket into messages. After a header that cannot be one there is no way to find the
/// next: nothing is read any more.
class SwayMessages {
public:
    static constexpr quint32 eventBit = 0x8000'0000; ///< in the type of what was not asked for
    static constexpr qsizetype most = 64 * 1024 * 1024; ///< bytes of a body; a whole session has some hundred thousand

    static QByteArray packed(const SwayMessage& message);

    void append(const QByteArray& bytes);
    std::optional<SwayMessage> next(); ///< none before one is complete
    bool isBroken() const { return m_isBroken; }

private:
    QByteArray m_bytes;
    bool m_isBroken = false;
};

} // namespace ambrelle
