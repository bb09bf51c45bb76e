// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppSettings.h"
#include "window/frame/SearchWords.h"
#include "window/settings/SettingsRow.h"

#include <algorithm>
#include <map>

namespace ambrelle {

class Button;

/// One of the values that a drop-down offers.
template <typename T> struct RowChoice {
    T value;
    QString title;
};

/// Numbers that can be typed.
struct RowRange {
    int least;
    int most;
    QString sentence; ///< how the field shows a number, in the place of %1
};

/// A section of the settings screen: groups of rows, one below the other. A control writes its setting at once, and
/// follows it when it changes elsewhere; showing a value never writes one.
class SettingsSection : public QWidget {
    Q_OBJECT
public:
    explicit SettingsSection(AppSettings& settings, QWidget* parent = nullptr);

    AppSettings& settings() const { return m_settings; }
    const QList<SettingsGroup*>& groups() const { return m_groups; }
    const QList<SettingsRow*>& rows() const { return m_rows; } ///< of all groups

    /// Shows the rows that one looks for, without the groups' titles, and gives how many there are; empty: everything.
    /// `title` is what the section is called.
    int showFound(const SearchWords& words, const QString& title);
    /// Brings the keyboard to the first control that is seen.
    bool focusFirst();

    SettingsGroup* addGroup(const QString& title = {});
    /// Something below the groups that is no setting; away while one looks for settings.
    void addNote(QWidget* note);

    // Rows go to the last group.

    SettingsRow* addSwitch(const RowText& text, Setting<bool>& setting);
    /// `other` names a stored value that is none of the choices; it becomes one more entry.
    template <typename T>
    SettingsRow* addChoice(const RowText& text, Setting<T>& setting, const QList<RowChoice<T>>& choices,
        const std::function<QString(const T&)>& other = {})
    {
        return addChoiceRow(
            text, setting.key(), titlesOf(choices), [&setting, choices] { return placeOf(setting(), choices); },
            [&setting, other] { return other ? other(setting()) : QString(); },
            [&setting, choices](int index) { setting.set(choices[index].value); });
    }
    template <typename T>
    SettingsRow* addSegments(const RowText& text, Setting<T>& setting, const QList<RowChoice<T>>& choices)
    {
        return addSegmentsRow(
            text, setting.key(), titlesOf(choices), [&setting, choices] { return placeOf(setting(), choices); },
            [&setting, choices](int index) { setting.set(choices[index].value); });
    }
    /// A number is taken on Enter, by an arrow, and when the focus goes after it was typed.
    SettingsRow* addNumber(const RowText& text, Setting<int>& setting, const RowRange& range);
    /// A line of text with a button that stores it trimmed, as Enter does; enabled while it differs from what is
    /// stored.
    SettingsRow* addText(
        const RowText& text, Setting<QString>& setting, const QString& placeholder, const QString& button);
    SettingsRow* addButton(const RowText& text, Button* button, std::function<void()> press);
    /// With any other control; `show` brings it up to date with the setting of that key, now and later.
    SettingsRow* addRow(
        const RowText& text, QWidget* control, const QString& key = {}, std::function<void()> show = {});
    SettingsRow* addTold(const RowText& text) { return addRow(text, nullptr); } ///< without a control
    /// Has `show` called now and whenever the setting of that key changes.
    void follow(const QString& key, std::function<void()> show);

Q_SIGNALS:
    void remade(); ///< there are other rows, perhaps found, perhaps not

protected:
    /// Puts what `make` adds in the place of everything there is. The keyboard stays at the row of the same name.
    void remake(const std::function<void()>& make);

private:
    void showFound();
    void clear();
    template <typename T> static QStringList titlesOf(const QList<RowChoice<T>>& choices)
    {
        QStringList titles;
        for (const RowChoice<T>& choice : choices)
            titles.append(choice.title);
        return titles;
    }
    /// -1: it is none of them.
    template <typename T> static int placeOf(const T& value, const QList<RowChoice<T>>& choices)
    {
        const auto found = std::ranges::find(choices, value, &RowChoice<T>::value);
        return found == choices.end() ? -1 : static_cast<int>(std::distance(choices.begin(), found));
    }
    SettingsRow* addChoiceRow(const RowText& text, const QString& key, const QStringList& titles,
        std::function<int()> index, std::function<QString()> other, std::function<void(int)> choose);
    SettingsRow* addSegmentsRow(const RowText& text, const QString& key, const QStringList& titles,
        std::function<int()> index, std::function<void(int)> choose);

    AppSettings& m_settings;
    QList<SettingsGroup*> m_groups;
    QList<SettingsRow*> m_rows;
    QList<QWidget*> m_notes;
    SearchWords m_words; // that one looks for
    QString m_title; // then
    std::multimap<QString, std::function<void()>> m_shows;
};

} // namespace ambrelle
