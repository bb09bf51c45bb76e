// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "support/PrivateBus.h"
#include "support/Variable.h"
#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

/// A desktop for tests: a folder with pictures, a configuration of its own, and tools that are found before others.
class ToolDesk : public ::testing::Test {
protected:
    void writeFile(const QString& name, const QByteArray& text) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// A shell script; "HERE" in it stands for the folder.
    void addTool(const QString& name, QByteArray script) const
    {
        writeFile(name, "#!/bin/sh\n" + script.replace("HERE", QFile::encodeName(folder.path())));
        ASSERT_TRUE(QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QString addPicture(const QString& name) const
    {
        QImage image(8, 5, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(path(name), "PNG"));
        return path(name);
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QByteArray contents(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    template <typename Value> static Value answerOf(const std::function<void(std::function<void(const Value&)>)>& ask)
    {
        std::optional<Value> answer;
        ask([&answer](const Value& value) { answer = value; });
        EXPECT_FALSE(answer) << "answered before the call was over";
        EXPECT_TRUE(waitUntil([&answer] { return answer.has_value(); })) << "no answer";
        return answer.value_or(Value());
    }
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

    const QTemporaryDir folder;

private:
    const Variable m_path{"PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH")};
    const Variable m_configuration{"XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u"config"_s))};
};

} // namespace ambrelle::test
