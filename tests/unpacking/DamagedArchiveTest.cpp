// SPDX-License-Identifier: MIT

#include "unpacking/Unpacking.h"
#include "unpacking/UpdateTool.h"
#include "unpacking/Zip.h"

#include <QScopeGuard>

#include <random>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace ambrelle::test {

namespace {

using Tree = QMap<QString, std::pair<unsigned, QByteArray>>;

/// A place where the headers are, mostly: between them there is little else.
qsizetype somewhere(const QByteArray& bytes, std::mt19937& random)
{
    return static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()));
}

QByteArray damaged(QByteArray bytes, std::mt19937& random)
{
    static const QList<QByteArray> numbers{QByteArray(2, '\0'), QByteArray(2, '\xff'), QByteArray(4, '\0'),
        QByteArray(4, '\xff'), QByteArray("\xff\xff\xff\x7f", 4), QByteArray("\x01\0", 2), QByteArray("PK\x01\x02"),
        QByteArray("PK\x03\x04"), QByteArray("PK\x05\x06"), QByteArray("PK\x06\x06"), QByteArray("../"),
        QByteArray("/"), QByteArray(1, '\0')};
    const unsigned count = 1 + random() % 4;
    for (unsigned i = 0; i < count && bytes.size() > 1; ++i) {
        const qsizetype place = somewhere(bytes, random);
        const qsizetype length = 1 + somewhere(bytes, random) % 64;
        switch (random() % 8) {
        case 0:
        case 1: bytes[place] = static_cast<char>(bytes[place] ^ (1 << random() % 8)); break;
        case 2: bytes[place] = static_cast<char>(random()); break;
        case 3:
        case 4: {
            const QByteArray& number = numbers[static_cast<qsizetype>(random()) % numbers.size()];
            bytes.replace(place, number.size(), number);
            break;
        }
        case 5: bytes.remove(place, length); break;
        case 6: bytes.insert(place, bytes.mid(somewhere(bytes, random), length)); break;
        default: bytes.replace(place, length, bytes.mid(somewhere(bytes, random), length)); break;
        }
    }
    return bytes;
}

/// Archives, each unpacked into a folder of its own in memory where there is such a place.
struct DamagedArchiveTest : testing::Test {
    const QTemporaryDir folder{QDir(u"/dev/shm"_s).exists() ? u"/dev/shm/ambrelle-test-XXXXXX"_s : QString()};
    const QString staged = folder.filePath(u"staged"_s);

    std::string unpacked(const QByteArray& archive) const
    {
        const QString before = QDir::currentPath();
        const int file = ::memfd_create("archive", MFD_CLOEXEC);
        EXPECT_EQ(::write(file, archive.constData(), static_cast<std::size_t>(archive.size())), archive.size());
        QDir(staged).removeRecursively();
        QDir().mkpath(staged);
        const int target = ::open(QFile::encodeName(staged).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        const auto cleanUp = qScopeGuard([&] {
            ::close(target);
            ::close(file);
            QDir::setCurrent(before);
        });
        return unpack(file, target);
    }
};

} // namespace

// More of them: AMBRELLE_MUTATIONS=100000.
TEST_F(DamagedArchiveTest, NothingOddComesOfADamagedArchive)
{
    QList<ZipItem> items = goodItems();
    items[4].hasDescriptor = true;
    items[7].hasWideSizes = true;
    const QByteArray whole = zipOf(items);
    ASSERT_EQ(unpacked(whole), "");
    QSet<QByteArray> contents;
    for (const ZipItem& item : items)
        contents.insert(item.content);
    const int count = qEnvironmentVariable("AMBRELLE_MUTATIONS", u"4000"_s).toInt();
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    int taken = 0;
    for (int seed = 0; seed < count; ++seed) {
        std::mt19937 random(static_cast<unsigned>(seed));
        const QByteArray archive = damaged(whole, random);
        const std::string fault = unpacked(archive);
        const Tree tree = treeOf(staged);
        ASSERT_EQ(oddThings(tree), QStringList()) << seed;
        ASSERT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System), before) << seed;
        if (!fault.empty())
            continue;
        ++taken;
        ASSERT_EQ(QDir(staged).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1) << seed;
        for (const auto& [mode, content] : tree)
            ASSERT_TRUE(contents.contains(content)) << seed << ": its checksum is another";
    }
    EXPECT_GT(taken, count / 50);
    EXPECT_LT(taken, count * 3 / 4);
    RecordProperty("taken", taken);
}

} // namespace ambrelle::test
