// SPDX-License-Identifier: MIT

#include "unpacking/Signature.h"

#include <algorithm>
#include <cerrno>
#include <vector>

#include <sodium.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {

namespace {

constexpr std::string_view untrustedPrefix = "untrusted comment: ";
constexpr std::string_view trustedPrefix = "trusted comment: ";
constexpr std::string_view keyKind = "Ed";
constexpr std::string_view digestKind = "ED"; ///< "Ed" would be of the whole file, which then has to be in memory
constexpr int letters = sodium_base64_VARIANT_ORIGINAL;

/// The bytes behind the letters, if it is exactly that many and no other letters stand for them.
template <std::size_t count> std::optional<std::array<unsigned char, count>> fromLetters(std::string_view text)
{
    std::array<unsigned char, count> bytes{};
    std::size_t length = 0;
    if (sodium_base642bin(bytes.data(), count, text.data(), text.size(), nullptr, &length, nullptr, letters) != 0
        || length != count)
        return std::nullopt;
    std::array<char, sodium_base64_ENCODED_LEN(count, letters)> again{};
    sodium_bin2base64(again.data(), again.size(), bytes.data(), count, letters);
    return text == again.data() ? std::optional(bytes) : std::nullopt;
}

template <std::size_t from, std::size_t count, std::size_t all>
std::array<unsigned char, count> part(const std::array<unsigned char, all>& bytes)
{
    static_assert(from + count <= all);
    std::array<unsigned char, count> cut{};
    std::copy_n(bytes.begin() + from, count, cut.begin());
    return cut;
}

template <std::size_t all> bool isOfKind(const std::array<unsigned char, all>& bytes, std::string_view kind)
{
    return std::equal(kind.begin(), kind.end(), bytes.begin());
}

/// Cuts the next line off. None where no line ends, unless it is the last and nothing follows.
std::optional<std::string_view> takeLine(std::string_view& text, bool isLast)
{
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos ? !isLast : isLast && end + 1 != text.size())
        return std::nullopt;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

bool isControl(char letter)
{
    return letter != '\t' && (static_cast<unsigned char>(letter) < 0x20 || letter == 0x7f);
}

std::optional<std::string_view> takeComment(std::string_view& text, std::string_view prefix)
{
    const std::optional<std::string_view> line = takeLine(text, false);
    if (!line || !line->starts_with(prefix) || std::ranges::any_of(*line, isControl))
        return std::nullopt;
    return line->substr(prefix.size());
}

} // namespace

std::optional<Digest> digestOf(int descriptor)
{
    struct stat status { };
    crypto_generichash_blake2b_state state;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || sodium_init() < 0
        || crypto_generichash_blake2b_init(&state, nullptr, 0, sizeof(Digest)) != 0
        || ::lseek(descriptor, 0, SEEK_SET) != 0)
        return std::nullopt;
    std::array<unsigned char, 65536> block;
    for (;;) {
        const ssize_t got = ::read(descriptor, block.data(), block.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        crypto_generichash_blake2b_update(&state, block.data(), static_cast<std::size_t>(got));
    }
    Digest digest{};
    crypto_generichash_blake2b_final(&state, digest.data(), digest.size());
    return digest;
}

std::optional<PublicKey> PublicKey::parse(std::string_view letters)
{
    const auto bytes = fromLetters<2 + 8 + 32>(letters);
    if (!bytes || !isOfKind(*bytes, keyKind))
        return std::nullopt;
    return PublicKey{.id = part<2, 8>(*bytes), .point = part<10, 32>(*bytes)};
}

std::optional<Signature> Signature::parse(std::string_view file)
{
    if (file.size() > mostBytes || !takeComment(file, untrustedPrefix))
        return std::nullopt;
    const std::optional<std::string_view> digestLine = takeLine(file, false);
    const std::optional<std::string_view> comment = takeComment(file, trustedPrefix);
    const std::optional<std::string_view> commentLine = takeLine(file, true);
    if (!digestLine || !comment || !commentLine)
        return std::nullopt;
    const auto ofDigest = fromLetters<2 + 8 + 64>(*digestLine);
    const auto ofComment = fromLetters<64>(*commentLine);
    if (!ofDigest || !ofComment || !isOfKind(*ofDigest, digestKind))
        return std::nullopt;
    return Signature{.keyId = part<2, 8>(*ofDigest),
        .ofDigest = part<10, 64>(*ofDigest),
        .comment = std::string(*comment),
        .ofComment = *ofComment};
}

bool Signature::isBy(const PublicKey& key, const Digest& digest) const
{
    if (key.id != keyId
        || crypto_sign_verify_detached(ofDigest.data(), digest.data(), digest.size(), key.point.data()) != 0)
        return false;
    std::vector<unsigned char> both(ofDigest.begin(), ofDigest.end());
    both.insert(both.end(), comment.begin(), comment.end());
    return crypto_sign_verify_detached(ofComment.data(), both.data(), both.size(), key.point.data()) == 0;
}

} // namespace ambrelle
