// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace ambrelle {

/// BLAKE2b of 512 bits: what a signature stands on in place of the signed bytes.
using Digest = std::array<unsigned char, 64>;

/// Of a whole file, from its first byte. None: it cannot be read, or is no plain file, which has an end.
std::optional<Digest> digestOf(int descriptor);

/// Half of a pair of Ed25519 keys, with the name that minisign gave to the pair.
struct PublicKey {
    std::array<unsigned char, 8> id{};
    std::array<unsigned char, 32> point{};

    /// The 56 letters by which minisign writes a key. None: they are something else.
    static std::optional<PublicKey> parse(std::string_view letters);

    bool operator==(const PublicKey&) const = default;
};

/// A signature file of minisign, of the kind that signs a digest. It also signs a comment.
struct Signature {
    std::array<unsigned char, 8> keyId{};
    std::array<unsigned char, 64> ofDigest{};
    std::string comment; ///< the trusted one: true when the signature is
    std::array<unsigned char, 64> ofComment{}; ///< and of `ofDigest`, so that the two belong together

    static constexpr std::size_t mostBytes = 2048; ///< in a file

    /// There is one way to write a signature: a file with one byte more, fewer or other ends is none.
    static std::optional<Signature> parse(std::string_view file);
    /// Whether the owner of the key has signed both, the digest and the comment.
    bool isBy(const PublicKey& key, const Digest& digest) const;

    bool operator==(const Signature&) const = default;
};

} // namespace ambrelle
