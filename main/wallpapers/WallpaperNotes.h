// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace ambrelle {

class UserDefaults;

/// What is kept of the desktop picture from one run to the next.
class WallpaperNotes {
public:
    explicit WallpaperNotes(UserDefaults& defaults)
        : m_defaults(defaults)
    {
    }

    /// What the desktop showed before the program set a picture, as its port told it.
    std::optional<QJsonObject> previous() const;
    void setPrevious(const std::optional<QJsonObject>& memory);

    QString current() const; ///< the file last set on the main screen; empty when none is
    void setCurrent(const QString& file);

private:
    UserDefaults& m_defaults;
};

} // namespace ambrelle
