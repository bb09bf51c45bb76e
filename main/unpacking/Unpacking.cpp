// SPDX-License-Identifier: MIT

#include "unpacking/Unpacking.h"

#include "unpacking/ArchiveRules.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {

namespace {

template <auto release> struct Freed {
    template <class Thing> void operator()(Thing* thing) const { release(thing); }
};
using Reader = std::unique_ptr<archive, Freed<archive_read_free>>;
using Writer = std::unique_ptr<archive, Freed<archive_write_free>>;
using Entry = std::unique_ptr<archive_entry, Freed<archive_entry_free>>;

constexpr std::size_t blockBytes = 65536;

std::string systemFault()
{
    return std::strerror(errno);
}

std::string faultOf(archive* reader)
{
    const char* text = archive_error_string(reader);
    return text ? text : "unreadable";
}

/// With what the system said of it, such as that the disk is full.
std::string writingFaultOf(archive* writer)
{
    const int number = archive_errno(writer);
    return faultOf(writer) + (number > 0 ? std::string(": ") + std::strerror(number) : "");
}

/// From the first byte of the file; null where it is no zip archive.
Reader readerOf(int file)
{
    Reader reader(archive_read_new());
    const bool isOpen = reader && ::lseek(file, 0, SEEK_SET) == 0
        && archive_read_support_format_zip_seekable(reader.get()) == ARCHIVE_OK
        && archive_read_open_fd(reader.get(), file, blockBytes) == ARCHIVE_OK;
    return isOpen ? std::move(reader) : nullptr;
}

/// The rarer ways of packing are not ours: their decoders need not meet what others wrote.
bool isPackedPlainly(archive* reader)
{
    const char* name = archive_format_name(reader);
    const std::string_view way = name ? name : "";
    return way.ends_with("(uncompressed)") || way.ends_with("(deflation)");
}

ArchiveItem itemOf(archive_entry* entry)
{
    const char* path = archive_entry_pathname(entry);
    const auto type = archive_entry_filetype(entry);
    return {.path = path ? path : "",
        .kind = type == AE_IFREG ? ArchiveItem::Kind::file
            : type == AE_IFDIR   ? ArchiveItem::Kind::folder
                                 : ArchiveItem::Kind::other,
        .isLink = archive_entry_symlink(entry) || archive_entry_hardlink(entry),
        .isEncrypted = archive_entry_is_encrypted(entry) != 0,
        .mode = static_cast<unsigned>(archive_entry_perm(entry)),
        .bytes = archive_entry_size_is_set(entry) ? archive_entry_size(entry) : -1};
}

/// Calls `visit` for every item that the rules admit, until it gives the reason of a refusal.
std::string readAll(
    archive* reader, ArchiveRules& rules, const std::function<std::string(const ArchiveItem& item)>& visit)
{
    for (;;) {
        archive_entry* entry = nullptr;
        const int status = archive_read_next_header(reader, &entry);
        if (status == ARCHIVE_EOF)
            return rules.close();
        if (status != ARCHIVE_OK) // a warning is one too many
            return faultOf(reader);
        if (!isPackedPlainly(reader))
            return "packed in a way that is not ours";
        const ArchiveItem item = itemOf(entry);
        if (std::string fault = rules.admit(item); !fault.empty())
            return fault;
        if (std::string fault = visit(item); !fault.empty())
            return fault;
    }
}

/// Writes below the working folder what has passed the rules.
class TreeWriter {
public:
    TreeWriter(std::int64_t all, const UnpackingProgress& progress)
        : m_writer(archive_write_disk_new())
        , m_all(all)
        , m_progress(progress)
    {
        // A second line of defence: the rules let nothing through that these would stop.
        constexpr int guards = ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_SECURE_SYMLINKS
            | ARCHIVE_EXTRACT_SECURE_NOABSOLUTEPATHS | ARCHIVE_EXTRACT_NO_OVERWRITE;
        if (m_writer)
            archive_write_disk_set_options(m_writer.get(), guards);
    }

    /// The bytes of the item come from the reader that has just read its header.
    std::string write(archive* reader, const ArchiveItem& item)
    {
        // Made anew, so that nothing comes along that nobody has looked at.
        const Entry entry(archive_entry_new());
        if (!m_writer || !entry)
            return "no memory";
        const bool isFolder = item.kind == ArchiveItem::Kind::folder;
        archive_entry_set_pathname(entry.get(), item.path.c_str());
        archive_entry_set_filetype(entry.get(), isFolder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry.get(), plainMode(item));
        archive_entry_set_size(entry.get(), isFolder ? 0 : item.bytes);
        if (archive_write_header(m_writer.get(), entry.get()) != ARCHIVE_OK)
            return writingFaultOf(m_writer.get());
        if (!isFolder) {
            if (std::string fault = copy(reader, item.bytes); !fault.empty())
                return fault;
        }
        return archive_write_finish_entry(m_writer.get()) == ARCHIVE_OK ? "" : writingFaultOf(m_writer.get());
    }
    std::string close()
    {
        return archive_write_close(m_writer.get()) == ARCHIVE_OK ? "" : writingFaultOf(m_writer.get());
    }

private:
    std::string copy(archive* reader, std::int64_t told)
    {
        std::int64_t written = 0;
        for (;;) {
            const void* block = nullptr;
            std::size_t size = 0;
            la_int64_t offset = 0;
            const int status = archive_read_data_block(reader, &block, &size, &offset);
            if (status == ARCHIVE_EOF)
                return written == told ? "" : "fewer bytes than told";
            if (status != ARCHIVE_OK)
                return faultOf(reader);
            if (offset != written || static_cast<std::int64_t>(size) > told - written)
                return "other bytes than told";
            if (archive_write_data_block(m_writer.get(), block, size, offset) != ARCHIVE_OK)
                return writingFaultOf(m_writer.get());
            written += static_cast<std::int64_t>(size);
            m_done += static_cast<std::int64_t>(size);
            if (m_progress)
                m_progress(m_done, m_all);
        }
    }

    const Writer m_writer;
    const std::int64_t m_all;
    const UnpackingProgress& m_progress;
    std::int64_t m_done = 0;
};

} // namespace

std::string unpack(int file, int folder, const UnpackingProgress& progress)
{
    const Reader survey = readerOf(file);
    if (!survey)
        return "not a zip archive";
    ArchiveRules rules;
    if (std::string fault = readAll(survey.get(), rules, [](const ArchiveItem&) { return std::string(); });
        !fault.empty())
        return fault;
    if (::fchdir(folder) != 0)
        return systemFault();
    const Reader reader = readerOf(file);
    if (!reader)
        return "not a zip archive";
    TreeWriter writer(rules.bytes(), progress);
    ArchiveRules again;
    if (std::string fault =
            readAll(reader.get(), again, [&](const ArchiveItem& item) { return writer.write(reader.get(), item); });
        !fault.empty())
        return fault;
    if (std::string fault = writer.close(); !fault.empty())
        return fault;
    return ::syncfs(folder) == 0 ? "" : systemFault();
}

} // namespace ambrelle
