// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/AutostartEntry.h"

#include "foundation/WholeFile.h"
#include "foundation/Wording.h"
#include "platform/linux/desktop/DesktopEntryText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString entryName = u"/autostart/org.ambrelle.Ambrelle.desktop"_s;
constexpr const char* hiddenKey = "Hidden";
constexpr const char* gnomeKey = "X-GNOME-Autostart-enabled"; // what a tool of one desktop writes instead of Hidden

bool isEnabled(const QByteArray& content)
{
    const DesktopEntryText entry(content);
    return entry.isEntry() && !entry.isTrue(hiddenKey) && entry.value(gnomeKey) != "false";
}

QByteArray freshEntry(const QByteArray& exec)
{
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Ambrelle\n"
           "Comment=Live widgets on the desktop\n"
           "Exec="
        + exec
        + "\n"
          "Icon=org.ambrelle.Ambrelle\n"
          "StartupNotify=false\n";
}

bool isFresh(const QByteArray& content)
{
    return content == freshEntry(DesktopEntryText(content).value("Exec").value_or(QByteArray()));
}

QString refused(const QString& reason)
{
    return reason.isEmpty() ? QString() : LoginItem::refusal() + u": "_s + reason;
}

QString write(const QString& path, const QByteArray& content)
{
    // A link stays one: the entry may lie among somebody's managed files.
    const QString target = QFileInfo(path).canonicalFilePath();
    return refused(writeWhole(target.isEmpty() ? path : target, content));
}

} // namespace

AutostartEntry::Folders AutostartEntry::Folders::standard()
{
    const QString home = qEnvironmentVariable("XDG_CONFIG_HOME");
    const QString system = qEnvironmentVariable("XDG_CONFIG_DIRS");
    Folders folders;
    folders.user = QDir::isAbsolutePath(home) ? home : QDir::homePath() + u"/.config"_s;
    for (const QString& folder : (system.isEmpty() ? u"/etc/xdg"_s : system).split(u':', Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder))
            folders.system += folder;
    }
    return folders;
}

AutostartEntry::AutostartEntry(QString program, Folders folders)
    : m_program(std::move(program))
    , m_folders(std::move(folders))
{
}

QString AutostartEntry::path() const
{
    return m_folders.user + entryName;
}

/// The path of the entry that counts where the user has none; empty when there is none either.
QString AutostartEntry::systemEntry() const
{
    for (const QString& folder : m_folders.system) {
        if (QFileInfo::exists(folder + entryName))
            return folder + entryName;
    }
    return {};
}

LoginItem::Status AutostartEntry::status() const
{
    const QString deciding = QFileInfo::exists(path()) ? path() : systemEntry();
    const std::optional<QByteArray> content = DesktopEntryText::contentOf(deciding);
    return content && isEnabled(*content) ? Status::enabled : Status::disabled;
}

QString AutostartEntry::whyNot() const
{
    return {};
}

QString AutostartEntry::setEnabled(bool enabled)
{
    const bool own = QFileInfo::exists(path());
    if ((status() == Status::enabled) == enabled && !(enabled && own))
        return {};
    const std::optional<QByteArray> present = own ? DesktopEntryText::contentOf(path()) : QByteArray();
    if (!present)
        return refused(Wording::tr("“%1” cannot be read.").arg(path()));
    return enabled ? enable(*present) : disable(*present);
}

QString AutostartEntry::enable(const QByteArray& present) const
{
    const QByteArray exec = DesktopEntryText::exec(m_program);
    if (present.isEmpty())
        return write(path(), freshEntry(exec));
    DesktopEntryText entry(present);
    if (!entry.isEntry())
        return refused(Wording::tr("“%1” is something else.").arg(path()));
    entry.remove(hiddenKey);
    entry.remove(gnomeKey);
    // A command that the user put there is the user's; one that this program wrote may name a place it has moved from.
    if (isFresh(entry.text()) || !entry.value("Exec"))
        entry.set("Exec", exec);
    return entry.text() == present ? QString() : write(path(), entry.text());
}

QString AutostartEntry::disable(const QByteArray& present) const
{
    const std::optional<QByteArray> beneath = DesktopEntryText::contentOf(systemEntry());
    const bool wouldStillStart = beneath && isEnabled(*beneath);
    if (isFresh(present) && !wouldStillStart) {
        QFile file(path());
        return file.remove() ? QString() : refused(file.errorString());
    }
    DesktopEntryText entry(present.isEmpty() ? freshEntry(DesktopEntryText::exec(m_program)) : present);
    entry.set(hiddenKey, "true");
    return write(path(), entry.text());
}

} // namespace ambrelle
