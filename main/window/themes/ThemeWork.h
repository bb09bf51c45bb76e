// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"
#include "window/frame/MainWindowModel.h"

#include <functional>

namespace ambrelle {

class Clock;

/// What can be done to the desktop with a theme.
enum class ThemeOperation { applyWithWallpaper, applyKeepingWallpaper, setWallpaper };

/// What is being done and takes so long that it has to be shown: from 0.15 s on, then for 0.3 s at least.
class ThemeWork final : public QObject {
    Q_OBJECT
public:
    struct Working {
        ThemeChoice theme;
        ThemeOperation operation = ThemeOperation::applyWithWallpaper;

        bool operator==(const Working&) const = default;
    };

    explicit ThemeWork(Clock& clock);

    const std::optional<Working>& working() const { return m_working; }
    void begin(const Working& work); ///< takes the place of what is shown; an end that waits is told first
    void end(const std::function<void()>& then); ///< which is called when it is shown no longer

Q_SIGNALS:
    void changed();

private:
    void show(const std::optional<Working>& working);

    Clock& m_clock;
    std::optional<Working> m_working;
    double m_since = 0; // seconds
    std::function<void()> m_then; ///< of the end that waits
    Ticket m_next;
};

} // namespace ambrelle
