// SPDX-License-Identifier: MIT

#include "offline/BatchOutput.h"

#include "support/TestFolder.h"

#include <QFile>

#include <thread>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

TEST(BatchProgressTest, TellsHowMuchIsDoneAndHowLongTheRestTakes)
{
    struct Case {
        qsizetype done;
        qint64 elapsed;
        QString expected;
    };
    for (const Case& each : {
             Case{0, 500, u"[····················] 1/8 Neon"_s},
             Case{2, 3000, u"[#####···············] 3/8 Neon, 9 s left"_s},
             Case{4, 100'000, u"[##########··········] 5/8 Neon, 1 min 40 s left"_s},
             Case{8, 9000, u"[####################] 8/8 Neon"_s},
             Case{12, 9000, u"[####################] 8/8 Neon"_s},
         })
        EXPECT_EQ(BatchProgress::line(each.done, 8, u"Neon"_s, each.elapsed, 80), each.expected);
    EXPECT_EQ(BatchProgress::line(2, 8, u"Neon"_s, 3000, 30).size(), 30) << "a second line would stay";
}

TEST(BatchOutputTest, TellsFilesInTheirOrderAndGoesOnAfterOneThatCannotBeRendered)
{
    const TestFolder folder;
    testing::internal::CaptureStdout();
    BatchOutput output(folder.filePath(u"out"_s), 1);
    ASSERT_TRUE(output.open());
    output.add(u"slow.txt"_s, [] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return QByteArray("slow");
    });
    output.tell(u"slow 0.05s"_s);
    output.add(u"below/none.png"_s, [] { return BatchOutput::png(QImage()); });
    output.add(u"below/quick.txt"_s, QByteArray("quick"));
    EXPECT_EQ(output.finish(), 0);
    const QString told = QString::fromStdString(testing::internal::GetCapturedStdout());
    EXPECT_EQ(told,
        u"wrote %1/slow.txt\nslow 0.05s\nfailed to render none\nwrote %1/below/quick.txt\n"_s.arg(
            folder.filePath(u"out"_s)));
}

TEST(BatchOutputTest, NothingIsWrittenAfterAFailure)
{
    const TestFolder folder;
    folder.write(u"out/taken"_s, "a file");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    BatchOutput output(folder.filePath(u"out"_s), 1);
    ASSERT_TRUE(output.open());
    output.add(u"taken/picture.png"_s, QByteArray("bytes"));
    output.flush();
    EXPECT_TRUE(output.isStopped());
    output.add(u"other.png"_s, QByteArray("bytes"));
    output.refuse(u"Something else."_s);
    EXPECT_EQ(output.finish(), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    const QString told = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_TRUE(told.startsWith("ambrelle: "_L1) && told.count(u'\n') == 1) << qPrintable(told);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"out/other.png"_s)));
}

TEST(BatchOutputTest, TellsWhatWasWrittenBeforeAFailureAndWritesNothingElse)
{
    const TestFolder folder;
    const QString quick = folder.filePath(u"out/quick.txt"_s);
    std::atomic<bool> mayGoOn = false;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    BatchOutput output(folder.filePath(u"out"_s), 1);
    ASSERT_TRUE(output.open());
    output.add(u"late.txt"_s, [&] {
        mayGoOn.wait(false);
        return QByteArray("late");
    });
    output.add(u"quick.txt"_s, QByteArray("quick"));
    for (int i = 0; i < 5000 && !QFile::exists(quick); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    output.refuse(u"Something."_s);
    mayGoOn = true;
    mayGoOn.notify_all();
    EXPECT_EQ(output.finish(), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "wrote " + quick.toStdString() + '\n');
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"out/late.txt"_s)));
}

TEST(BatchOutputTest, PicturesKeepTheirPixels)
{
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_ARGB32}) {
        QImage picture(7, 3, QImage::Format_ARGB32);
        picture.fill(QColor(10, 200, 30, format == QImage::Format_ARGB32 ? 100 : 255));
        picture.setPixelColor(6, 2, Qt::red);
        picture.convertTo(format);
        const QImage back = QImage::fromData(BatchOutput::png(picture), "PNG");
        EXPECT_EQ(back.convertToFormat(QImage::Format_ARGB32), picture.convertToFormat(QImage::Format_ARGB32));
    }
    EXPECT_TRUE(BatchOutput::webp(QImage(), 80).isEmpty());
}

} // namespace
