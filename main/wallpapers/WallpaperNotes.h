// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/UserDefaults.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace ambrelle {

/// What is kept of the desktop picture from one run to the next.
class WallpaperNotes {
public:
    explicit WallpaperNotes(UserDefaults& defaults)
        : m_defaults(defaults)
    {
    }

    /// While it lives, nothing is kept; what was said in it is kept as one.
    [[nodiscard]] UserDefaults::Transaction asOne() { return UserDefaults::Transaction(m_defaults); }

    /// What the desktop showed before the program set a picture, as its port told it.
    std::optional<QJsonObject> previous() const;
    void setPrevious(const std::optional<QJsonObject>& memory);

    QString current() const; ///< the file last set on the main screen; empty when none is
    void setCurrent(const QString& file);

    /// Pictures that were asked for and do not show yet.
    struct Unfinished {
        QHash<QString, QString> files; ///< by connector
        QHash<QString, QString> shown; ///< what they were to take the place of, where that was known
        int starts = 0; ///< how often a run has begun with them

        bool operator==(const Unfinished&) const = default;
    };
    Unfinished unfinished() const; ///< no files when everything shows
    void setUnfinished(const Unfinished& unfinished);

private:
    UserDefaults& m_defaults;
};

} // namespace ambrelle
