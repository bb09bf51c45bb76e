// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QJsonObject>
#include <QList>

#include <functional>

namespace ambrelle {

/// A picture for one screen.
struct ScreenPicture {
    QString connector; ///< as in ScreenInfo
    QString file; ///< absolute path

    bool operator==(const ScreenPicture&) const = default;
};

/// The picture that the desktop shows behind everything. Nothing here blocks: answers come later on the main thread, or
/// never when the object is destroyed before.
class DesktopPicture : public Port {
public:
    /// Gets one sentence why it did not work, empty when it did.
    using Done = std::function<void(const QString& error)>;

    virtual bool isPerScreen() const = 0; ///< screens may show different pictures
    /// Shows each picture on its screen, filling it; other screens keep theirs. A desktop that has one picture for all
    /// screens takes the first. On failure the old picture stays.
    virtual void set(const QList<ScreenPicture>& pictures, Done done) = 0;
    /// The file that shows on the screen; empty when it is not known, as of a screen that came later.
    virtual void read(const QString& connector, std::function<void(const QString& file)> done) = 0;

    /// What the desktop shows now, on all screens and with its options, for `giveBack()` and nobody else; empty when
    /// that cannot be told. `folder` exists and may take files that are needed for it.
    virtual void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) = 0;
    virtual void giveBack(const QJsonObject& memory, Done done) = 0;
};

} // namespace ambrelle
