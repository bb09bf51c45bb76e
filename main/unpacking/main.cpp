// SPDX-License-Identifier: MIT

// ambrelle-update FOLDER SIGNATURE COMMENT KEY...
//
// Unpacks the archive on standard input into an empty folder, once one of the keys has signed it as what the comment
// says. Tells on standard output how many bytes of how many are unpacked, on standard error why it refuses.

#include "unpacking/Signature.h"
#include "unpacking/ToolLimits.h"
#include "unpacking/Unpacking.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace ambrelle;

enum Status : int { done = EXIT_SUCCESS, refused = EXIT_FAILURE, wrongUse = 2, otherRelease = 3 };

Status complain(Status status, std::string reason)
{
    // Parts of it may come from the archive.
    std::ranges::replace_if(
        reason, [](char letter) { return letter < ' ' || letter > '~'; }, '?');
    std::fprintf(stderr, "%s\n", reason.c_str());
    return status;
}

/// An empty folder of this user's, into which nobody else can put anything; -1 otherwise.
int openEmptyFolder(const char* path)
{
    const int folder = ::open(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status { };
    if (folder < 0 || ::fstat(folder, &status) != 0 || status.st_uid != ::geteuid() || (status.st_mode & 077) != 0)
        return -1;
    DIR* entries = ::fdopendir(::dup(folder));
    int count = 0;
    while (entries && ::readdir(entries))
        ++count;
    if (entries)
        ::closedir(entries);
    return count == 2 ? folder : -1; // itself and the one above
}

/// At most one byte more than a signature may have, so that it is refused.
std::string signatureFile(const char* path)
{
    std::string bytes(Signature::mostBytes + 1, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

/// A line for every mebibyte, and one at the end.
void tell(std::int64_t done, std::int64_t all)
{
    static std::int64_t told = 0;
    if (done - told < (1 << 20) && done != all)
        return;
    told = done;
    std::printf("%lld %lld\n", static_cast<long long>(done), static_cast<long long>(all));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 5)
        return complain(wrongUse, "Usage: ambrelle-update FOLDER SIGNATURE COMMENT KEY... < ARCHIVE");
    if (!keepWithinLimits())
        return complain(refused, "no limits");
    std::vector<PublicKey> keys;
    for (int i = 4; i < argc; ++i) {
        const std::optional<PublicKey> key = PublicKey::parse(argv[i]);
        if (!key)
            return complain(wrongUse, "not a key: " + std::string(argv[i]));
        keys.push_back(*key);
    }
    const int folder = openEmptyFolder(argv[1]);
    if (folder < 0)
        return complain(wrongUse, "not an empty folder for this alone: " + std::string(argv[1]));
    const std::optional<Signature> signature = Signature::parse(signatureFile(argv[2]));
    if (!signature)
        return complain(refused, "not a signature");
    const std::optional<Digest> digest = digestOf(STDIN_FILENO);
    if (!digest)
        return complain(refused, "the archive cannot be read");
    if (std::ranges::none_of(keys, [&](const PublicKey& key) { return signature->isBy(key, *digest); }))
        return complain(refused, "not signed by these keys");
    if (signature->comment != argv[3])
        return complain(otherRelease, "signed as " + signature->comment);
    const std::string fault = unpack(STDIN_FILENO, folder, &tell);
    return fault.empty() ? done : complain(refused, fault);
}
