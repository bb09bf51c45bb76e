// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ambrelle {

/// A folder for the time of a test. Files are named by their paths in it.
class TestFolder : public QTemporaryDir {
public:
    /// Writes the file anew, with the folders above it; gives its whole path.
    QString write(const QString& name, const QByteArray& content) const
    {
        QDir().mkpath(QFileInfo(filePath(name)).path());
        QFile file(filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        EXPECT_EQ(file.write(content), content.size()) << name.toStdString();
        return file.fileName();
    }
    /// A program of the shell.
    QString writeScript(const QString& name, const QByteArray& commands) const
    {
        QString script = write(name, "#!/bin/sh\n" + commands);
        EXPECT_TRUE(QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        return script;
    }
    /// Empty when there is no such file.
    QByteArray read(const QString& name) const
    {
        QFile file(filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace ambrelle
