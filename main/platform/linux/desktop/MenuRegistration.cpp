// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/MenuRegistration.h"

#include "foundation/PlainFile.h"
#include "foundation/WholeFile.h"
#include "platform/linux/desktop/DesktopEntryText.h"
#include "platform/linux/kernel/RunningProgram.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString menuEntry = u"/applications/org.ambrelle.Ambrelle.desktop"_s;
const QString kindsFile = u"/mime/packages/org.ambrelle.Ambrelle.xml"_s;
const QString iconFolder = u"/icons/hicolor"_s;

constexpr qint64 mostBytes = 1 << 20; // of an icon or an entry

/// What belongs to the program in a data folder, the entry first.
QStringList belongings(const QString& folder)
{
    QStringList names;
    for (const QString& name : {menuEntry, kindsFile}) {
        if (QFileInfo::exists(folder + name))
            names.append(name);
    }
    QDirIterator icons(folder + iconFolder, {u"org.ambrelle.Ambrelle*"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (icons.hasNext())
        names.append(icons.next().mid(folder.size()));
    return names;
}

/// The rules of text values; those of quoted arguments do not hold in TryExec.
QByteArray textValue(const QString& path)
{
    return QFile::encodeName(path).replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
}

void runIfInstalled(const QString& tool, const QString& folder)
{
    const QString path = QStandardPaths::findExecutable(tool);
    if (path.isEmpty() || !QFileInfo::exists(folder))
        return;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(path, {folder});
    process.waitForFinished();
}

} // namespace

MenuRegistration::Places MenuRegistration::Places::standard()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    folders.removeAll(home);
    return {.program = runningProgram(), .dataHome = home, .dataFolders = folders};
}

MenuRegistration::MenuRegistration(Places places)
    : m_places(std::move(places))
    , m_share(QDir::cleanPath(QFileInfo(m_places.program).path() + u"/../share"_s))
{
}

MenuRegistration::Outcome MenuRegistration::add() const
{
    const QString share = QFileInfo(m_share).canonicalFilePath();
    if (share.isEmpty() || !QFileInfo::exists(m_share + menuEntry))
        return {.fault = u"There is nothing beside this program that could be registered: install it first."_s};
    const bool isKnown = std::ranges::any_of(m_places.dataFolders + QStringList(m_places.dataHome),
        [&](const QString& folder) { return QFileInfo(folder).canonicalFilePath() == share; });
    if (isKnown)
        return {.fault = u"The desktop knows this program already."_s};
    const QString entryPath = m_places.dataHome + menuEntry;
    if (QFileInfo(entryPath).isSymLink() || (QFileInfo::exists(entryPath) && !QDir::isAbsolutePath(registered())))
        return {.fault = u"“%1” is somebody's own: it was not written by this program."_s.arg(entryPath)};
    Outcome outcome;
    for (const QString& name : belongings(m_share)) {
        const std::optional<QByteArray> content = readPlainFile(m_share + name, mostBytes);
        if (!content)
            return {.files = outcome.files, .fault = u"“%1” cannot be read."_s.arg(m_share + name)};
        const QString target = m_places.dataHome + name;
        const QString reason = writeWhole(target, name == menuEntry ? entry(*content) : *content);
        if (!reason.isEmpty())
            return {.files = outcome.files, .fault = u"“%1” cannot be written: %2"_s.arg(target, reason)};
        outcome.files.append(target);
    }
    refresh();
    return outcome;
}

MenuRegistration::Outcome MenuRegistration::remove() const
{
    const QString other = registered();
    if (other.isEmpty())
        return {};
    if (other != QString::fromUtf8(textValue(m_places.program)))
        return {.fault = u"Another copy is registered, not this one: “%1”."_s.arg(other)};
    Outcome outcome;
    QStringList names = belongings(m_places.dataHome);
    std::ranges::reverse(names); // while the entry is there, this can be done again
    for (const QString& name : std::as_const(names)) {
        const QString target = m_places.dataHome + name;
        if (!QFile::remove(target))
            return {.files = outcome.files, .fault = u"“%1” cannot be removed."_s.arg(target)};
        outcome.files.append(target);
    }
    refresh();
    return outcome;
}

QByteArray MenuRegistration::entry(const QByteArray& installed) const
{
    const QByteArray exec = "Exec=" + DesktopEntryText::exec(m_places.program);
    QByteArrayList lines = installed.split('\n');
    for (QByteArray& line : lines) {
        if (line == "Exec=ambrelle" || line.startsWith("Exec=ambrelle "))
            line.replace(0, static_cast<qsizetype>(std::size("Exec=ambrelle")) - 1, exec);
    }
    DesktopEntryText text(lines.join('\n'));
    text.set("TryExec", textValue(m_places.program));
    return text.text();
}

QString MenuRegistration::registered() const
{
    const DesktopEntryText entry(readPlainFile(m_places.dataHome + menuEntry, mostBytes).value_or(QByteArray()));
    return entry.isEntry() ? QString::fromUtf8(entry.value("TryExec").value_or(QByteArray())) : QString();
}

void MenuRegistration::refresh() const
{
    runIfInstalled(u"update-mime-database"_s, m_places.dataHome + u"/mime"_s);
    runIfInstalled(u"update-desktop-database"_s, m_places.dataHome + u"/applications"_s);
}

} // namespace ambrelle
