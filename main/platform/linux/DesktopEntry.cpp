#include "platform/linux/DesktopEntry.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestEntry = 256LL * 1024; // bytes; the largest in use have many translations and some 30 KiB

} // namespace

DesktopEntry DesktopEntry::parse(const QByteArray& text)
{
    DesktopEntry entry;
    bool inside = false;
    for (const QByteArray& raw : text.split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.startsWith(u'['))
            inside = line == "[Desktop Entry]"_L1;
        const qsizetype sign = line.indexOf(u'=');
        if (!inside || line.startsWith(u'#') || sign <= 0)
            continue;
        const QString key = line.left(sign).trimmed();
        if (!entry.m_values.contains(key))
            entry.m_values.insert(key, line.mid(sign + 1).trimmed());
    }
    return entry;
}

std::optional<DesktopEntry> DesktopEntry::read(const QString& file)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return std::nullopt;
    return parse(device.read(longestEntry));
}

QStringList DesktopEntry::list(const QString& key) const
{
    return value(key).split(u';', Qt::SkipEmptyParts);
}

bool DesktopEntry::isUsable(const QStringList& desktops) const
{
    if (value(u"Type"_s) != "Application"_L1 || isTrue(u"Hidden"_s))
        return false;
    const auto names = [&](const QString& key) {
        const QStringList listed = list(key);
        return std::ranges::any_of(desktops, [&](const QString& desktop) { return listed.contains(desktop); });
    };
    if (names(u"NotShowIn"_s) || (!list(u"OnlyShowIn"_s).isEmpty() && !names(u"OnlyShowIn"_s)))
        return false;
    const QString tried = value(u"TryExec"_s);
    if (!tried.isEmpty() && QStandardPaths::findExecutable(tried).isEmpty())
        return false;
    return !value(u"Exec"_s).isEmpty() || isTrue(u"DBusActivatable"_s);
}

} // namespace ambrelle
