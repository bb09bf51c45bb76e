// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/MenuRegistration.h"

#include "platform/linux/desktop/DesktopEntryText.h"
#include "support/TestFolder.h"

#include <QDirIterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const QString menuFile = u"home/applications/org.ambrelle.Ambrelle.desktop"_s;
constexpr const char* installedEntry = "[Desktop Entry]\nName=Ambrelle\nExec=ambrelle %F\nTryExec=ambrelle\n\n"
                                       "[Desktop Action edit]\nExec=ambrelle --action edit\n";

/// A copy of the program with what is installed beside it, and the home of a user.
class MenuRegistrationTest : public testing::Test {
protected:
    MenuRegistrationTest() { layOut(u"my 5% copy"_s); }

    void layOut(const QString& copy) const
    {
        folder.write(copy + u"/bin/ambrelle"_s, "");
        folder.write(copy + u"/share/applications/org.ambrelle.Ambrelle.desktop"_s, installedEntry);
        folder.write(copy + u"/share/mime/packages/org.ambrelle.Ambrelle.xml"_s, "kinds");
        folder.write(copy + u"/share/icons/hicolor/scalable/apps/org.ambrelle.Ambrelle.svg"_s, "icon");
        folder.write(copy + u"/share/icons/hicolor/scalable/apps/another.svg"_s, "another");
    }
    QString program(const QString& copy = u"my 5% copy"_s) const { return folder.filePath(copy + u"/bin/ambrelle"_s); }
    MenuRegistration registration(const QString& copy = u"my 5% copy"_s) const
    {
        return MenuRegistration({.program = program(copy),
            .dataHome = folder.filePath(u"home"_s),
            .dataFolders = {folder.filePath(u"system/share"_s), folder.filePath(u"missing"_s)}});
    }
    QStringList inHome() const
    {
        QStringList files;
        QDirIterator all(folder.filePath(u"home"_s), QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext())
            files.append(all.next().mid(folder.filePath(u"home/"_s).size()));
        files.removeIf([](const QString& file) { // made by the system's tools, where they are installed
            return file.startsWith("mime/"_L1) && !file.startsWith("mime/packages/"_L1);
        });
        files.removeAll(u"applications/mimeinfo.cache"_s);
        files.sort();
        return files;
    }

    TestFolder folder;
};

TEST_F(MenuRegistrationTest, TheEntryStartsThisCopyWhereverItStands)
{
    const MenuRegistration::Outcome outcome = registration().add();
    EXPECT_EQ(outcome.fault, QString());
    EXPECT_THAT(inHome(),
        ElementsAre(u"applications/org.ambrelle.Ambrelle.desktop"_s,
            u"icons/hicolor/scalable/apps/org.ambrelle.Ambrelle.svg"_s, u"mime/packages/org.ambrelle.Ambrelle.xml"_s));
    EXPECT_EQ(outcome.files.size(), 3);
    const QByteArray exec = DesktopEntryText::exec(program());
    EXPECT_THAT(exec.toStdString(), HasSubstr("5%% copy"));
    EXPECT_EQ(folder.read(menuFile),
        "[Desktop Entry]\nName=Ambrelle\nExec=" + exec + " %F\nTryExec=" + program().toUtf8()
            + "\n\n[Desktop Action edit]\nExec=" + exec + " --action edit\n");
}

TEST_F(MenuRegistrationTest, WhatWasAddedIsRemovedAndNothingElse)
{
    EXPECT_THAT(registration().remove().files, IsEmpty()) << "nothing is registered";
    folder.write(u"home/icons/hicolor/scalable/apps/mine.svg"_s, "mine");
    ASSERT_EQ(registration().add().fault, QString());
    QFile::remove(folder.filePath(u"my 5% copy/share/icons/hicolor/scalable/apps/org.ambrelle.Ambrelle.svg"_s));
    ASSERT_EQ(registration().add().fault, QString()) << "once more, after an update without that icon";
    EXPECT_EQ(registration().remove().fault, QString());
    EXPECT_THAT(inHome(), ElementsAre(u"icons/hicolor/scalable/apps/mine.svg"_s));
}

TEST_F(MenuRegistrationTest, AnotherCopyTakesItsPlaceButDoesNotTakeItOut)
{
    layOut(u"newer"_s);
    ASSERT_EQ(registration().add().fault, QString());
    EXPECT_THAT(registration(u"newer"_s).remove().fault.toStdString(), HasSubstr("my 5% copy"));
    EXPECT_EQ(inHome().size(), 3);
    EXPECT_EQ(registration(u"newer"_s).add().fault, QString());
    EXPECT_THAT(folder.read(menuFile).toStdString(), HasSubstr("newer/bin/ambrelle"));
}

TEST_F(MenuRegistrationTest, NothingIsWrittenWhereItWouldBeWrong)
{
    layOut(u"system"_s);
    EXPECT_NE(registration(u"system"_s).add().fault, QString()) << "it is in the menu already";
    folder.write(u"build/ambrelle"_s, "");
    EXPECT_NE(registration(u"build"_s).add().fault, QString()) << "nothing lies beside it";
    EXPECT_THAT(inHome(), IsEmpty());
    folder.write(menuFile, "[Desktop Entry]\nExec=ambrelle %F\nTryExec=ambrelle\nName=Mine\n");
    EXPECT_NE(registration().add().fault, QString()) << "the user's own entry";
    EXPECT_THAT(folder.read(menuFile).toStdString(), HasSubstr("Name=Mine"));
    EXPECT_EQ(inHome().size(), 1);
}

} // namespace
} // namespace ambrelle
