// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Plays sounds of the desktop's sound theme through libcanberra, which is loaded for the first sound and then stays.
/// What may wait for a sound server is done on a thread of its own.
class EventSounds {
public:
    /// Who plays, for the desktop's volume control.
    struct Player {
        QString name;
        QString id; ///< of the desktop entry and the icon
    };

    /// `library` is the name of the shared library, or its path.
    explicit EventSounds(Player player, QString library = u"canberra"_s);
    EventSounds(const EventSounds&) = delete;
    EventSounds& operator=(const EventSounds&) = delete;

    /// Starts the sound of the event and returns at once. Left out while another sound is still being handed over, so
    /// that a sound server that hangs holds up one thread and no more.
    void play(const QString& event);

    bool isBusy() const; ///< a sound is being handed over
    int played() const; ///< how many sounds were played to their end

private:
    struct State;

    Player m_player;
    QString m_library;
    State* m_state = nullptr; // none before the first sound; lives as long as the process
};

} // namespace ambrelle
