#pragma once

#include "platform/DesktopPicture.h"
#include "support/Variable.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
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
        const QDeadlineTimer deadline(10000);
        while (!answer && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
        EXPECT_TRUE(answer) << "no answer";
        return answer.value_or(Value());
    }
    static QString set(DesktopPicture& desktop, const QList<ScreenPicture>& pictures)
    {
        return answerOf<QString>([&](auto done) { desktop.set(pictures, done); });
    }
    static QString read(DesktopPicture& desktop, const QString& connector = QStringLiteral("DP-1"))
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
    const Variable m_configuration{"XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(QStringLiteral("config")))};
};

/// A message bus of its own, which ends with the test.
class PrivateBus {
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (m_daemon.waitForReadyRead(5000))
            address = m_daemon.readLine().trimmed();
    }
    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QByteArray address; ///< empty where no bus can be started

private:
    QProcess m_daemon;
};

} // namespace ambrelle::test
