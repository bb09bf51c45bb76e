// SPDX-License-Identifier: MIT

#pragma once

#include "unpacking/Signature.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <array>

#include <sodium.h>

namespace ambrelle::test {

/// A pair of keys for the time of a test, which writes what minisign would write.
class SigningKey {
public:
    SigningKey()
    {
        EXPECT_GE(sodium_init(), 0);
        crypto_sign_keypair(m_public.data(), m_secret.data());
        randombytes_buf(m_id.data(), m_id.size());
    }

    QByteArray publicLine() const { return ("Ed" + bytes(m_id) + bytes(m_public)).toBase64(); }
    PublicKey publicKey() const { return PublicKey::parse(publicLine().toStdString()).value_or(PublicKey()); }
    QByteArray signatureOf(const QByteArray& archive, const QByteArray& comment) const
    {
        Digest digest{};
        crypto_generichash_blake2b(
            digest.data(), digest.size(), data(archive), static_cast<unsigned long long>(archive.size()), nullptr, 0);
        const QByteArray ofDigest = signatureOf(bytes(digest));
        return "untrusted comment: a test\n" + ("ED" + bytes(m_id) + ofDigest).toBase64()
            + "\ntrusted comment: " + comment + '\n' + signatureOf(ofDigest + comment).toBase64() + '\n';
    }

private:
    static const unsigned char* data(const QByteArray& bytes)
    {
        return reinterpret_cast<const unsigned char*>(bytes.constData());
    }
    template <std::size_t count> static QByteArray bytes(const std::array<unsigned char, count>& array)
    {
        return {reinterpret_cast<const char*>(array.data()), static_cast<qsizetype>(count)};
    }
    QByteArray signatureOf(const QByteArray& message) const
    {
        std::array<unsigned char, crypto_sign_BYTES> signature{};
        crypto_sign_detached(
            signature.data(), nullptr, data(message), static_cast<unsigned long long>(message.size()), m_secret.data());
        return bytes(signature);
    }

    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> m_public{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> m_secret{};
    std::array<unsigned char, 8> m_id{};
};

} // namespace ambrelle::test
