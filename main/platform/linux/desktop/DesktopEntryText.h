// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>
#include <QStringList>

#include <optional>

namespace ambrelle {

/// The text of a desktop entry file. Only its main group is read and changed; everything else, comments and
/// translations among it, stays as it is.
class DesktopEntryText {
public:
    explicit DesktopEntryText(const QByteArray& text);
    /// What is in a file; nothing when it cannot be read, or is too long to be an entry.
    static std::optional<QByteArray> contentOf(const QString& path);

    bool isEntry() const { return m_begin >= 0; } ///< false when the main group is missing
    /// The raw value of a key; none when it is missing.
    std::optional<QByteArray> value(const QByteArray& key) const;
    QStringList list(const QByteArray& key) const;
    bool isTrue(const QByteArray& key) const { return value(key) == "true"; }
    void set(const QByteArray& key, const QByteArray& value); ///< only of an entry
    void remove(const QByteArray& key);
    QByteArray text() const { return m_lines.join('\n'); }

    /// The value of Exec that starts exactly this program, without arguments.
    static QByteArray exec(const QString& program);

private:
    qsizetype lineOf(const QByteArray& key) const;

    QByteArrayList m_lines;
    qsizetype m_begin = -1; // the line of the main group
    qsizetype m_end = 0; // the line behind it
};

} // namespace ambrelle
