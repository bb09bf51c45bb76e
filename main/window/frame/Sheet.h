// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

namespace ambrelle {

struct SheetButton {
    enum class Role { cancel, other, action, danger };

    QString id;
    QString title;
    Role role = Role::other;

    bool operator==(const SheetButton&) const = default;
};

/// One line to type.
struct SheetField {
    QString label;
    QString value; ///< at first, selected
    int limit = 60; ///< characters

    bool operator==(const SheetField&) const = default;
};

/// One of several to choose.
struct SheetChoice {
    QString label;
    QStringList titles;
    int chosen = 0; ///< at first

    bool operator==(const SheetChoice&) const = default;
};

/// A line of a table: what it is about, and what is said about it.
struct SheetLine {
    QString subject;
    QString text;

    bool operator==(const SheetLine&) const = default;
};

/// What a question to the user, or a failure that is told, says and offers.
struct SheetContent {
    QString title;
    QString text;
    std::optional<SheetField> field;
    std::optional<SheetChoice> choice;
    QList<SheetLine> table{};
    bool warning = false; ///< a failure: with the symbol of one
    QList<SheetButton> buttons; ///< left to right

    bool hasCancel() const;
    /// The button that Enter presses: the action, but where something is taken away the one that cancels.
    const SheetButton* standard() const;
    bool operator==(const SheetContent&) const = default;
};

struct SheetAnswer {
    QString button; ///< its id; empty where the sheet was left
    QString text; ///< of the field, trimmed
    int choice = -1; ///< the index of what was chosen; -1 without a choice

    bool operator==(const SheetAnswer&) const = default;
};

/// The sheets that wait for an answer, the first of which is shown. Outlives the window.
class SheetQueue final : public QObject {
    Q_OBJECT
public:
    using Answered = std::function<void(const SheetAnswer&)>;

    /// Asks after all that are asked already. `answered` is called once; a sheet that was left gives no button.
    void ask(SheetContent content, Answered answered = {});

    const SheetContent* current() const; ///< null: none
    void answer(const SheetAnswer& answer); ///< of the current one
    /// The window goes: the current sheet and every question are left unanswered. Failures nobody has seen yet wait.
    void leave();

Q_SIGNALS:
    void changed();

private:
    struct Asked {
        SheetContent content;
        Answered answered;
    };

    std::deque<Asked> m_asked;
};

} // namespace ambrelle
