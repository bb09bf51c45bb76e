// SPDX-License-Identifier: MIT

#include "app/WordingFile.h"

#include "foundation/Wording.h"
#include "support/TestFolder.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTranslator>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

class WordingFileTest : public testing::Test {
protected:
    ~WordingFileTest() override
    {
        qDeleteAll(application.findChildren<QTranslator*>(Qt::FindDirectChildrenOnly));
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    }

    /// A compiled wording of these sources, each put as itself with the language's name.
    void compile(const QByteArray& language, const QByteArrayList& sources) const
    {
        QByteArray messages;
        for (const QByteArray& source : sources)
            messages += "<message><source>" + source + "</source><translation>" + source + ' ' + language
                + "</translation></message>";
        const QString name = u"ambrelle_"_s + QString::fromLatin1(language);
        const QString sourceFile = folder.write(
            name + u".ts"_s, R"(<TS version="2.1"><context><name>ambrelle</name>)" + messages + "</context></TS>");
        const QStringList arguments{u"-silent"_s, sourceFile, u"-qm"_s, folder.filePath(name + u".qm"_s)};
        EXPECT_EQ(QProcess::execute(QString::fromUtf8(AMBRELLE_LRELEASE), arguments), 0);
    }

    QCoreApplication& application = *QCoreApplication::instance();
    const TestFolder folder;
};

TEST_F(WordingFileTest, WordsTextsInTheUsersLanguageAndTheRestInEnglish)
{
    compile("en", {"one", "two"});
    compile("de", {"one"});
    WordingFile::install(application, folder.path(), QLocale(QLocale::German, QLocale::Switzerland));
    EXPECT_EQ(Wording::tr("one"), u"one de"_s);
    EXPECT_EQ(Wording::tr("two"), u"two en"_s);
    EXPECT_EQ(Wording::tr("three"), u"three"_s);
}

TEST_F(WordingFileTest, WindowsAreReadInTheDirectionOfTheirTexts)
{
    compile("en", {"one"});
    compile("ar", {"one"});
    WordingFile::install(application, folder.path(), QLocale(QLocale::Hebrew));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight) << "its texts are English ones";
    WordingFile::install(application, folder.path(), QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    WordingFile::install(application, folder.path(), QLocale(QLocale::English));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(WordingFileTest, AMissingOrDamagedFileLeavesEnglishOrTheSources)
{
    WordingFile::install(application, folder.filePath(u"nowhere"_s), QLocale(QLocale::German));
    EXPECT_EQ(Wording::tr("one"), u"one"_s);
    compile("en", {"one"});
    folder.write(u"ambrelle_de.qm"_s, "no wording");
    for (const auto language : {QLocale::German, QLocale::French, QLocale::C, QLocale::English}) {
        WordingFile::install(application, folder.path(), QLocale(language));
        EXPECT_EQ(Wording::tr("one"), u"one en"_s) << QLocale::languageToCode(language).toStdString();
    }
}

} // namespace

} // namespace ambrelle
