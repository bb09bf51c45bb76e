#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace ambrelle {

/// What a desktop entry says of its program, in the words of the Desktop Entry Specification of freedesktop.org.
/// Translations are left out.
class DesktopEntry {
public:
    static DesktopEntry parse(const QByteArray& text);
    /// None when there is no such file or it cannot be read.
    static std::optional<DesktopEntry> read(const QString& file);

    QString value(const QString& key) const { return m_values.value(key); } ///< empty when the key is missing
    bool isTrue(const QString& key) const { return value(key) == QLatin1StringView("true"); }
    QStringList list(const QString& key) const;

    /// Whether it names a program that can be started, on any of `desktops` (as in XDG_CURRENT_DESKTOP).
    bool isUsable(const QStringList& desktops) const;

private:
    QHash<QString, QString> m_values; // of the group "Desktop Entry", still escaped
};

} // namespace ambrelle
