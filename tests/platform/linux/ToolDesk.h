// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "support/AnswerOf.h"
#include "support/PrivateBus.h"
#include "support/TestFolder.h"
#include "support/Variable.h"

#include <QImage>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

/// A desktop for tests: a folder with pictures, a configuration of its own, and tools that are found before others.
class ToolDesk : public ::testing::Test {
protected:
    void writeFile(const QString& name, const QByteArray& text) const { folder.write(name, text); }
    /// A shell script; "HERE" in it stands for the folder.
    void addTool(const QString& name, QByteArray script) const
    {
        folder.writeScript(name, script.replace("HERE", QFile::encodeName(folder.path())));
    }
    QString addPicture(const QString& name) const
    {
        QImage image(8, 5, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(path(name), "PNG"));
        return path(name);
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QByteArray contents(const QString& name) const { return folder.read(name); }

    static QString set(DesktopPicture& desktop, const QList<ScreenPicture>& pictures)
    {
        return answerOf<QString>([&](auto done) { desktop.set(pictures, done); });
    }
    static QString read(DesktopPicture& desktop, const QString& connector = u"DP-1"_s)
    {
        return answerOf<QString>([&](auto done) { desktop.read(connector, done); });
    }
    QJsonObject remember(DesktopPicture& desktop) const
    {
        return answerOf<QJsonObject>([&](auto done) { desktop.remember(folder.path(), done); });
    }
    static QString giveBack(DesktopPicture& desktop, const QJsonObject& memory)
    {
        return answerOf<QString>([&](auto done) { desktop.giveBack(memory, done); });
    }

    const TestFolder folder;

private:
    const Variable m_path{"PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH")};
    const Variable m_configuration{"XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u"config"_s))};
};

} // namespace ambrelle::test
