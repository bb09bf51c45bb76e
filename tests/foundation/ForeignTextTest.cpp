// SPDX-License-Identifier: MIT

#include "foundation/ForeignText.h"
#include "foundation/PlainFile.h"
#include "support/TestFolder.h"

#include <utility>

#include <sys/stat.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(ForeignTextTest, ShowsInOneLineWhatItSays)
{
    const std::pair<QString, QString> cases[] = {
        {u"Plain title"_s, u"Plain title"_s},
        {u" a\tb\r\nc\u2028d\u00A0 e "_s, u"a b c d e"_s},
        {u"gnp.\u202Eexe.\u2066sgnos\u2069"_s, u"gnp.exe.sgnos"_s}, // else it would end in "png"
        {u"a\u0007b\u001B[31mc\u007F\u0085d"_s, u"ab[31mc d"_s},
        {u"\uFEFFso\u00ADft\u200B\u200E"_s, u"soft"_s},
        {u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s, u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s},
        {u"می\u200Cخواهم"_s, u"می\u200Cخواهم"_s},
        {u"\U000E0041a\U000E007F"_s, u"a"_s},
        {QChar(0xD83D) + u"a"_s + QChar(0xDC00), u"a"_s},
        {u"\u202E \u200F"_s, {}},
        {{}, {}},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(foreignText(text).toStdString(), shown.toStdString());
}

TEST(ForeignTextTest, IsBounded)
{
    EXPECT_EQ(foreignText(QString(1'000'000, u'a')).size(), 500);
    EXPECT_EQ(foreignText(QString(1'000'000, u' ') + u'a'), u"a"_s);
    EXPECT_EQ(foreignText(u"ab cd"_s, 3), u"ab"_s);
    EXPECT_EQ(foreignText(u"ab\U0001F468"_s, 3), u"ab"_s) << "no half letters";
    EXPECT_EQ(foreignText(u"ab\U0001F468"_s, 4), u"ab\U0001F468"_s);
}

TEST(PlainFileTest, ReadsNothingButPlainFilesOfLimitedSize)
{
    const TestFolder folder;
    const QString file = folder.write(u"file"_s, "bytes");
    EXPECT_EQ(readPlainFile(file, 5), "bytes");
    EXPECT_FALSE(readPlainFile(file, 4));
    EXPECT_EQ(readPlainFile(folder.write(u"empty"_s, {}), 4), "");
    const QString link = folder.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(file, link));
    EXPECT_EQ(readPlainFile(link, 5), "bytes");
    const QString pipe = folder.filePath(u"pipe"_s); // nobody ever writes into it
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& other : {pipe, folder.path(), u"/dev/zero"_s, folder.filePath(u"missing"_s), QString()})
        EXPECT_FALSE(readPlainFile(other, 5)) << other.toStdString();
}

} // namespace
} // namespace ambrelle
