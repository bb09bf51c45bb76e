// SPDX-License-Identifier: MIT

#include "unpacking/UpdateTool.h"
#include "unpacking/Zip.h"

#include <archive.h>
#include <archive_entry.h>

using namespace Qt::StringLiterals;

namespace ambrelle::test {

namespace {

// Why they are refused.
constexpr const char* beside = "something beside the one folder";
constexpr const char* elsewhere = "a path that goes elsewhere";
constexpr const char* misread = "a name that programs misread";
constexpr const char* noZip = "not a zip archive";
constexpr const char* notPlain = "neither a plain file nor a folder";
constexpr const char* oddLetter = "a letter that is not for names";
constexpr const char* oddMode = "a mode beyond reading, writing and running";
constexpr const char* otherBytes = "other bytes than told";
constexpr const char* packedOtherwise = "packed in a way that is not ours";
constexpr const char* tooMuch = "too many bytes";
constexpr const char* twice = "two names for one place";

/// Archives that somebody has signed and that are not what they should be.
struct HostileArchiveTest : testing::Test {
    UpdateTool tool;

    /// A good archive with more in it is refused, before anything is written unless its headers told nothing.
    void expectRefused(const char* what, const char* why, const QList<ZipItem>& more, const ZipFrame& frame = {})
    {
        expectBytesRefused(what, why, zipOf(goodItems() + more, frame));
        EXPECT_TRUE(tool.staged().isEmpty()) << what;
    }
    void expectBytesRefused(const char* what, const char* why, const QByteArray& archive)
    {
        const UpdateTool::Outcome outcome = tool.unpack(archive);
        EXPECT_EQ(outcome.status, 1) << what << ": " << outcome.reason.toStdString();
        EXPECT_TRUE(outcome.reason.startsWith(why)) << what << ": " << outcome.reason.toStdString();
        EXPECT_EQ(outcome.reason.count('\n'), 1) << what;
    }
    /// It is harmless, and just what is good comes of it.
    void expectHarmless(const char* what, const QByteArray& archive)
    {
        const UpdateTool::Outcome outcome = tool.unpack(archive);
        EXPECT_EQ(outcome.status, 0) << what << ": " << outcome.reason.toStdString();
        const auto staged = tool.staged();
        EXPECT_EQ(staged.size(), goodItems().size()) << what;
        EXPECT_EQ(staged[u"Ambrelle/bin/ambrelle"_s].second, goodItems()[2].content) << what;
    }
};

ZipItem file(const QByteArray& name, const QByteArray& content = "evil")
{
    return {.name = name, .content = content};
}

ZipItem ofMode(unsigned mode)
{
    return {.name = "Ambrelle/odd", .mode = mode, .method = 0};
}

QByteArray tarWithHardLink()
{
    QByteArray bytes(65536, '\0');
    std::size_t used = 0;
    archive* tar = archive_write_new();
    archive_write_set_format_ustar(tar);
    archive_write_open_memory(tar, bytes.data(), static_cast<std::size_t>(bytes.size()), &used);
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, "Ambrelle/bin");
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_entry_set_hardlink(entry, "../outside/kept");
    EXPECT_EQ(archive_write_header(tar, entry), ARCHIVE_OK);
    archive_entry_free(entry);
    archive_write_free(tar);
    return bytes.left(static_cast<qsizetype>(used));
}

} // namespace

TEST_F(HostileArchiveTest, NothingGoesElsewhere)
{
    const QByteArray outside = tool.folder.filePath(u"outside/evil"_s).toUtf8();
    expectRefused("above", elsewhere, {file("Ambrelle/../../outside/evil")});
    expectRefused("above, at once", elsewhere, {file("../outside/evil")});
    expectRefused("absolute", elsewhere, {file(outside)});
    expectRefused("absolute, twice", elsewhere, {file('/' + outside)});
    expectRefused("backslashes", elsewhere, {file("Ambrelle\\..\\..\\outside\\evil")});
    expectRefused("backslashes of another system", elsewhere,
        {{.name = "..\\..\\outside\\evil", .content = "evil", .system = 0}});
    expectRefused("a drive", oddLetter, {file("C:/evil")});
    expectRefused("elsewhere only in the first header", elsewhere,
        {{.name = "Ambrelle/fine", .content = "evil", .localName = "../outside/evil"}});
    expectRefused("cut short", elsewhere, {file(QByteArray("Ambrelle/../../outside/evil\0.txt", 32))});
    expectRefused("dots", elsewhere, {file("Ambrelle/./evil")});
    expectRefused("slashes", elsewhere, {file("Ambrelle//evil")});
    expectRefused("a second folder", beside, {file("Other/evil")});
    expectRefused("beside the folder", beside, {file("evil")});
    expectRefused("a name of nothing", elsewhere, {file("")});
    expectBytesRefused("only the folder above", elsewhere, zipOf({zipFolder("../")}));
    expectBytesRefused("only the root", elsewhere, zipOf({zipFolder("/")}));
}

TEST_F(HostileArchiveTest, NothingButPlainFilesAndFolders)
{
    expectRefused("a link out", notPlain, {zipLink("Ambrelle/link", "../../outside")});
    expectRefused("through a link", notPlain, {zipLink("Ambrelle/link", "../../outside"), file("Ambrelle/link/evil")});
    expectRefused("a link to itself", notPlain, {zipLink("Ambrelle/link", "link")});
    expectRefused("the folder is a link", notPlain, {zipLink("Ambrelle", "../outside")});
    expectRefused("set user", oddMode, {ofMode(0104755)});
    expectRefused("set group", oddMode, {ofMode(0102755)});
    expectRefused("sticky", oddMode, {ofMode(0101644)});
    expectRefused("a folder that hands its group on", oddMode, {ofMode(0042755)});
    expectRefused("a device of bytes", notPlain, {ofMode(0020666)});
    expectRefused("a device of blocks", notPlain, {ofMode(0060666)});
    expectRefused("a socket", notPlain, {ofMode(0140666)});
    expectRefused("encrypted", "an encrypted item", {{.name = "Ambrelle/secret", .content = "evil", .flags = 1}});
    expectBytesRefused("another format in disguise", noZip, tarWithHardLink());
    for (const int method : {1, 9, 12, 14, 93, 95, 98, 99})
        expectRefused(
            "packed otherwise", packedOtherwise, {{.name = "Ambrelle/packed", .content = "evil", .method = method}});
}

TEST_F(HostileArchiveTest, NamesAreOnceAndPlain)
{
    expectRefused("twice", twice, {file("Ambrelle/bin/ambrelle")});
    expectRefused("in other letters", twice, {file("Ambrelle/BIN/ambrelle")});
    expectRefused("a file as a folder", twice, {file("Ambrelle/bin/ambrelle/more")});
    expectRefused("a folder as a file", twice, {file("Ambrelle/bin")});
    expectRefused(
        "twice, told by the first header", twice, {{.name = "Ambrelle/x", .localName = "Ambrelle/bin/ambrelle"}});
    expectRefused("an option", misread, {file("Ambrelle/-rf")});
    expectRefused("two lines", oddLetter, {file("Ambrelle/a\nb")});
    expectRefused("from right to left", oddLetter, {file("Ambrelle/\xe2\x80\xaegpj.exe")});
    expectRefused("no letters", oddLetter, {file("Ambrelle/\xff\xfe")});
    expectRefused("a letter of a language", "Pathname cannot", {{.name = "Ambrelle/\xc3\xa4", .flags = 0x800}});
    expectRefused("a long name", "a path that is too long", {file("Ambrelle/" + QByteArray(300, 'x'))});
    expectRefused("deep folders", "folders too deep", {file("Ambrelle/" + QByteArray("a/").repeated(60) + "evil")});
    expectRefused("a blank at the end", misread, {file("Ambrelle/evil ")});
}

TEST_F(HostileArchiveTest, BombsStopAtTheirBounds)
{
    const QByteArray zeros(16 << 20, '\0');
    expectRefused("one large file", tooMuch, {{.name = "Ambrelle/zeros", .content = "x", .toldBytes = 300U << 20}});
    ZipItem part{.name = "Ambrelle/one", .content = "x", .toldBytes = 200U << 20};
    ZipItem other = part;
    ZipItem third = part;
    other.name = "Ambrelle/two";
    third.name = "Ambrelle/three";
    expectRefused("much in all", tooMuch, {part, other, third});
    expectRefused("negative", "Malformed",
        {{.name = "Ambrelle/a", .content = "x", .hasWideSizes = true, .toldWideBytes = ~0ULL}});
    expectRefused("huge", tooMuch,
        {{.name = "Ambrelle/a", .content = "x", .hasWideSizes = true, .toldWideBytes = 0x7fffffffffffffffULL}});
    QList<ZipItem> many;
    for (int i = 0; i < 60000; ++i)
        many.append({.name = "Ambrelle/" + QByteArray::number(i), .method = 0});
    expectRefused("many files", "too many items", many);
    // What the headers tell is not so.
    const auto stagedBytes = [this] {
        qint64 bytes = 0;
        for (const auto& [mode, content] : tool.staged())
            bytes += content.size();
        return bytes;
    };
    for (const quint32 told : {0U, 10U, 1U << 20}) {
        expectBytesRefused("more than told", otherBytes, zipOf({{.name = "A/b", .content = zeros, .toldBytes = told}}));
        EXPECT_LE(stagedBytes(), told);
    }
    expectBytesRefused("fewer than told", "ZIP uncompressed data is wrong size",
        zipOf({{.name = "A/b", .content = zeros, .toldBytes = 17U << 20}}));
    expectBytesRefused("as it is, more than told", otherBytes,
        zipOf({{.name = "A/b", .content = "abcdef", .toldBytes = 3, .method = 0}}));
}

TEST_F(HostileArchiveTest, DamageIsNotUnpacked)
{
    const QByteArray good = zipOf(goodItems());
    expectBytesRefused(
        "another checksum", "ZIP bad CRC", zipOf({{.name = "A/b", .content = "abc", .toldChecksum = 1}}));
    expectBytesRefused("nothing", noZip, "");
    expectBytesRefused("text", noZip, "This is no archive.\n");
    expectBytesRefused("an archive of nothing", noZip, zipOf({}));
    expectBytesRefused("no list", noZip, good.left(good.lastIndexOf("PK\x05\x06")));
    expectBytesRefused("half", noZip, good.left(good.size() / 2));
    expectBytesRefused("without its first half", noZip, good.mid(good.size() / 2));
    expectBytesRefused(
        "a list that points nowhere", noZip, QByteArray(good).replace(good.size() - 6, 4, "\xff\xff\xff\x7f"));
    QByteArray broken = good;
    broken.replace(good.indexOf("Ambrelle/bin/ambrelle") + 25, 8, QByteArray(8, '\xff'));
    expectBytesRefused("no deflated bytes", "ZIP decompression failed", broken);
}

TEST_F(HostileArchiveTest, OddButHarmless)
{
    const QList<ZipItem> items = goodItems();
    expectHarmless("a script before it", zipOf(items, {.before = "#!/bin/sh\nexit 1\n"}));
    expectHarmless("bytes after it", zipOf(items, {.after = QByteArray(1000, 'x')}));
    expectHarmless("the list twice", zipOf(items, {.repeats = 2}));
    QList<ZipItem> odd = items;
    for (ZipItem& item : odd)
        item.hasDescriptor = !item.name.endsWith('/');
    expectHarmless("sizes after the content", zipOf(odd));
    odd = items;
    for (ZipItem& item : odd)
        item.hasWideSizes = true;
    expectHarmless("wide sizes", zipOf(odd));
    odd = items;
    for (ZipItem& item : odd)
        item.system = 0;
    expectHarmless("no modes", zipOf(odd));
    odd = items;
    odd[2].name = "../../outside/evil"; // in the list; its own header says otherwise
    odd[2].localName = "Ambrelle/bin/ambrelle";
    expectHarmless("elsewhere only in the list", zipOf(odd));
    odd = items;
    odd[2].centralExtra = QByteArray::fromHex("7578ffff0104"); // an owner, cut short
    tool.unpack(zipOf(odd)); // whichever way
    // The reader takes a pipe for a file; one without content comes of it.
    EXPECT_EQ(tool.unpack(zipOf(items + QList{ofMode(0010666)})).status, 0);
    EXPECT_EQ(tool.staged()[u"Ambrelle/odd"_s], std::pair(0100644U, QByteArray()));
}

} // namespace ambrelle::test
