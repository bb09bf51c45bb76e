// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowList.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Windows that a test puts on the screen.
class RecordingWindowList final : public WindowList {
public:
    std::optional<QList<OnscreenWindow>> current = QList<OnscreenWindow>();
    bool isWatched = false;
    mutable int looks = 0; ///< how often the list was read

    bool isAvailable() const override { return current.has_value(); }
    QString whyNot() const override { return current ? QString() : u"The test shows no windows."_s; }
    std::optional<QList<OnscreenWindow>> windows() const override
    {
        ++looks;
        return current;
    }
    void setWatching(bool watching) override { isWatched = watching; }

    /// Replaces the windows and tells whoever watches.
    void show(const QList<OnscreenWindow>& windows)
    {
        current = windows;
        if (isWatched)
            Q_EMIT changed();
    }
};

} // namespace ambrelle
