// SPDX-License-Identifier: MIT

#pragma once

#include "model/SavedTheme.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QObject>

namespace ambrelle {

class UserDefaults;

/// The desktops that the user saved, newest first. Every change is stored at once; one that the disk refuses holds for
/// this run, and is stored as soon as that is possible. What is stored and cannot be read, by another version perhaps,
/// is shown nowhere and stays where it is. Main thread only.
class ThemeStore : public QObject {
    Q_OBJECT

public:
    explicit ThemeStore(UserDefaults& defaults, QObject* parent = nullptr);

    /// No two have the same identifier.
    const QList<SavedTheme>& themes() const { return m_themes; }

    /// Puts it before all others. False, and nothing is changed, when the settings have no room for it or could
    /// not tell it again.
    bool add(const SavedTheme& theme) { return insert(theme, 0); }
    /// As `add`, at that place among `themes()`, or at the nearest. An identifier that is missing or taken becomes a
    /// new one.
    bool insert(SavedTheme theme, qsizetype index);
    /// A theme that was taken out, for putBack(): with what this version does not know of it.
    struct Taken {
        QJsonObject entry;
        qsizetype index = 0; ///< among themes()
    };
    /// Nothing, and the list stays as it is, when there is no such theme.
    std::optional<Taken> remove(const QUuid& id);
    /// As `insert`.
    bool putBack(const Taken& theme);
    /// Gives the theme the name that `SavedTheme::nameFrom` makes of the text; from an empty one it keeps
    /// its own. Place and date stay.
    void rename(const QUuid& id, const QString& text);

    /// Writes again what the disk refused; false when it still does.
    bool storeAgain();

Q_SIGNALS:
    /// `themes()` is another list.
    void changed();
    void refused(); ///< the disk does not take the list as it is now

private:
    qsizetype find(const QUuid& id) const;
    bool insert(const QJsonObject& entry, qsizetype index);
    /// Takes the entries for what is stored from now on.
    void read(QJsonArray entries);
    bool store(const QJsonArray& entries); ///< false: the disk refuses
    void keepUnreadable();
    void replace(const QJsonArray& entries);

    UserDefaults& m_defaults;
    QJsonArray m_entries; // what is stored, with what this version does not know
    QList<SavedTheme> m_themes;
    QList<qsizetype> m_places; // of each of them among the entries
    bool m_keepsStored = false; // what is stored is no list, and goes aside before the first is written
};

} // namespace ambrelle
