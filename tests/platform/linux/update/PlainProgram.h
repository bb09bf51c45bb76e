// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/update/LinuxProgramFolder.h"
#include "support/TestFolder.h"

namespace ambrelle::test {

using namespace Qt::StringLiterals;

/// The folder of a program that only tells its version. Archives are shell scripts that its helper runs in the staged
/// folder.
struct PlainProgram {
    explicit PlainProgram(const QString& version = u"1.0"_s)
    {
        home.write(u"Ambrelle/share/ambrelle/org.ambrelle.Ambrelle.json"_s, information(version));
        home.write(u"Ambrelle/share/ambrelle/files.txt"_s, fileList);
        home.writeScript(u"Ambrelle/bin/ambrelle"_s, program(version));
        home.writeScript(u"Ambrelle/lib/ambrelle/ambrelle-update"_s, "cd \"$1\" && . /dev/stdin\n");
    }

    static QByteArray information(const QString& version)
    {
        return R"({"identifier": "org.ambrelle.Ambrelle", "version": ")" + version.toUtf8() + "\"}";
    }
    /// It fails where it is started without being asked for its version, so that a test that became it does.
    static QByteArray program(const QString& version)
    {
        return "echo Ambrelle " + version.toUtf8() + "\n[ $# -gt 0 ]\n";
    }
    /// The archive of a version.
    static QByteArray archive(const QString& version, const QByteArray& program)
    {
        return "mkdir -p Ambrelle/bin Ambrelle/lib/ambrelle Ambrelle/share/ambrelle && cd Ambrelle\n"
               "echo '"
            + information(version)
            + "' > share/ambrelle/org.ambrelle.Ambrelle.json\n"
              "printf '"
            + QByteArray(fileList).replace('\n', "\\n")
            + "' > share/ambrelle/files.txt\n"
              "echo '#!/bin/sh\n"
            + program + "' > bin/ambrelle; echo helper > lib/ambrelle/ambrelle-update; chmod +x bin/* lib/ambrelle/*\n";
    }
    static QByteArray archive(const QString& version) { return archive(version, program(version)); }

    QString root() const { return home.filePath(u"Ambrelle"_s); }
    QString path() const { return home.filePath(u"Ambrelle/bin/ambrelle"_s); }
    QString work() const { return home.filePath(u".Ambrelle.update"_s); }
    QByteArray version() const { return home.read(u"Ambrelle/share/ambrelle/org.ambrelle.Ambrelle.json"_s); }
    QStringList entries() const
    {
        return QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    TestFolder home;
    static constexpr const char* fileList = "./bin/ambrelle\n./lib/ambrelle/ambrelle-update\n"
                                            "./share/ambrelle/org.ambrelle.Ambrelle.json\n";
};

} // namespace ambrelle::test
