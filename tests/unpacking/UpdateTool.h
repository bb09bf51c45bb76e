// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestFolder.h"
#include "unpacking/SigningKey.h"

#include <QDirIterator>
#include <QMap>
#include <QProcess>

#include <functional>
#include <utility>

#include <sys/stat.h>

namespace ambrelle::test {

/// Everything below a folder: kind and mode as the system counts them, with the content of plain files.
inline QMap<QString, std::pair<unsigned, QByteArray>> treeOf(const QString& folder)
{
    QMap<QString, std::pair<unsigned, QByteArray>> tree;
    QDirIterator entries(
        folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        struct stat status { };
        EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
        QByteArray content;
        if (S_ISREG(status.st_mode)) {
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
            content = file.readAll();
        }
        tree[QDir(folder).relativeFilePath(path)] = {status.st_mode, content};
    }
    return tree;
}

/// What is in the tree and is neither a folder nor a plain file of plain modes.
inline QStringList oddThings(const QMap<QString, std::pair<unsigned, QByteArray>>& tree)
{
    QStringList odd;
    for (auto thing = tree.cbegin(); thing != tree.cend(); ++thing) {
        const unsigned mode = thing->first;
        if (mode != (S_IFDIR | 0755U) && mode != (S_IFREG | 0755U) && mode != (S_IFREG | 0644U))
            odd.append(thing.key());
    }
    return odd;
}

/// The program that checks and unpacks an update, in a folder where nothing else may change.
class UpdateTool {
public:
    struct Outcome {
        int status = -1; ///< -1: it crashed
        QByteArray reason;
        QByteArray progress;
    };

    UpdateTool()
    {
        folder.write(QString::fromUtf8("outside/kept"), "as it was");
        prepare();
    }

    /// Unpacks into an empty folder what is signed in this way.
    Outcome unpack(const QByteArray& archive, const QByteArray& signature)
    {
        prepare();
        folder.write(archiveName, archive);
        folder.write(signatureName, signature);
        const auto before = surroundings();
        Outcome outcome = run({folder.filePath(stagedName), folder.filePath(signatureName), QString::fromUtf8(comment),
            QString::fromUtf8(key.publicLine())});
        EXPECT_EQ(surroundings(), before) << outcome.reason.toStdString();
        EXPECT_EQ(oddThings(staged()), QStringList()) << outcome.reason.toStdString();
        return outcome;
    }
    Outcome unpack(const QByteArray& archive) { return unpack(archive, key.signatureOf(archive, comment)); }
    /// With other arguments.
    Outcome run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment;
        environment.insert(QString::fromUtf8("LC_ALL"), QString::fromUtf8("C")); // and nothing else
        process.setProcessEnvironment(environment);
        process.setStandardInputFile(input.isEmpty() ? folder.filePath(archiveName) : input);
        if (inChild)
            process.setChildProcessModifier(inChild);
        process.start(QString::fromUtf8(AMBRELLE_UPDATE), arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        return {.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            .reason = process.readAllStandardError(),
            .progress = process.readAllStandardOutput()};
    }
    /// What was unpacked.
    QMap<QString, std::pair<unsigned, QByteArray>> staged() const { return treeOf(folder.filePath(stagedName)); }
    /// Makes the folder anew.
    void prepare()
    {
        QDir(folder.filePath(stagedName)).removeRecursively();
        EXPECT_EQ(::mkdir(QFile::encodeName(folder.filePath(stagedName)).constData(), 0700), 0);
    }

    const QString archiveName = QString::fromUtf8("archive");
    const QString signatureName = QString::fromUtf8("signature");
    const QString stagedName = QString::fromUtf8("staged");
    const QByteArray comment = "org.ambrelle.Ambrelle 0.2.0";
    const SigningKey key;
    const TestFolder folder;
    QString input; ///< in place of the archive
    std::function<void()> inChild; ///< called before it starts

private:
    QMap<QString, std::pair<unsigned, QByteArray>> surroundings() const
    {
        auto tree = treeOf(folder.path());
        tree.removeIf([this](const auto& thing) { return thing.key().startsWith(stagedName + u'/'); });
        return tree;
    }
};

} // namespace ambrelle::test
