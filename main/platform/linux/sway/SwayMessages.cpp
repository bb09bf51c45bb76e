// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayMessages.h"

#include <QtEndian>

namespace ambrelle {

namespace {

constexpr QByteArrayView magic("i3-ipc");
constexpr qsizetype numberSize = sizeof(quint32);
constexpr qsizetype headerSize = magic.size() + 2 * numberSize; // magic, length of the body, type

} // namespace

QByteArray SwayMessages::packed(const SwayMessage& message)
{
    QByteArray bytes(headerSize, Qt::Uninitialized);
    std::copy(magic.begin(), magic.end(), bytes.begin());
    qToLittleEndian(static_cast<quint32>(message.body.size()), bytes.data() + magic.size());
    qToLittleEndian(message.type, bytes.data() + magic.size() + numberSize);
    return bytes + message.body;
}

void SwayMessages::append(const QByteArray& bytes)
{
    if (!m_isBroken)
        m_bytes += bytes;
}

std::optional<SwayMessage> SwayMessages::next()
{
    if (m_bytes.size() < headerSize)
        return std::nullopt;
    const auto length = qFromLittleEndian<quint32>(m_bytes.constData() + magic.size());
    if (!m_bytes.startsWith(magic) || length > most) {
        m_isBroken = true;
        m_bytes.clear();
        return std::nullopt;
    }
    const auto bodySize = static_cast<qsizetype>(length);
    if (m_bytes.size() - headerSize < bodySize)
        return std::nullopt;
    SwayMessage message{
        qFromLittleEndian<quint32>(m_bytes.constData() + magic.size() + numberSize), m_bytes.mid(headerSize, bodySize)};
    m_bytes.remove(0, headerSize + bodySize);
    return message;
}

} // namespace ambrelle
