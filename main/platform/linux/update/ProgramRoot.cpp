// SPDX-License-Identifier: MIT

#include "platform/linux/update/ProgramRoot.h"

#include "foundation/Json.h"
#include "foundation/PlainFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <sys/stat.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestInformation = 64 * 1024; // bytes

bool isPlainFile(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && !file.isSymLink();
}

bool holdsOnlyItsOwn(const QString& folder, QDir::Filters what)
{
    const auto filters = what | QDir::Hidden | QDir::NoDotAndDotDot;
    return QDir(folder).entryList(filters, QDir::Name) == QStringList{u"bin"_s, u"lib"_s, u"share"_s}
    && isPlainFile(fileList(folder));
}

QString helperFile(const QString& folder)
{
    return folder + u"/lib/ambrelle/ambrelle-update"_s;
}

} // namespace

QString programFile(const QString& folder)
{
    return folder + u"/bin/ambrelle"_s;
}

QString informationFile(const QString& folder)
{
    return folder + u"/share/ambrelle/org.ambrelle.Ambrelle.json"_s;
}

QString fileList(const QString& folder)
{
    return folder + u"/share/ambrelle/files.txt"_s;
}

bool holdsProgram(const QString& folder)
{
    return isPlainFile(programFile(folder)) && isPlainFile(informationFile(folder));
}

bool isReplaceable(const QString& folder)
{
    return holdsOnlyItsOwn(folder, QDir::AllEntries | QDir::System) && holdsProgram(folder)
        && isPlainFile(helperFile(folder)) && QFileInfo(helperFile(folder)).isExecutable();
}

std::optional<QJsonObject> informationOf(const QString& folder)
{
    const QByteArray text = readPlainFile(informationFile(folder), longestInformation).value_or(QByteArray());
    const QJsonDocument information = QJsonDocument::fromJson(text);
    return information.isObject() ? std::optional(information.object()) : std::nullopt;
}

QString versionOf(const QString& folder)
{
    return informationOf(folder).value_or(QJsonObject()).value("version"_L1).toString();
}

QString ProgramRoot::pathOf(const QString& program)
{
    const QFileInfo folder(QFileInfo(program).path());
    return folder.fileName() == "bin"_L1 && folder.isAbsolute() ? folder.path() : QString();
}

std::optional<ProgramRoot> ProgramRoot::of(const QString& program)
{
    ProgramRoot root{.path = pathOf(program)};
    struct stat status { };
    if (root.path.isEmpty() || root.name().isEmpty() || program != root.program()
        || !holdsOnlyItsOwn(root.path, QDir::Dirs) || ::lstat(QFile::encodeName(root.path).constData(), &status) != 0
        || !S_ISDIR(status.st_mode))
        return std::nullopt;
    root.device = status.st_dev;
    root.number = status.st_ino;
    return root;
}

QString ProgramRoot::parent() const
{
    return QFileInfo(path).path();
}

QString ProgramRoot::name() const
{
    return QFileInfo(path).fileName();
}

QString ProgramRoot::program() const
{
    return programFile(path);
}

QString ProgramRoot::helper() const
{
    return helperFile(path);
}

QString ProgramRoot::workFolderOf(const QString& rootPath)
{
    const QFileInfo root(rootPath);
    return QDir(root.path()).filePath(u"."_s + root.fileName() + u".update"_s);
}

bool ProgramRoot::isUnchanged() const
{
    return of(program()) == *this;
}

} // namespace ambrelle
