// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PlayerSource.h"

#include <QHash>
#include <QPointer>

#include <utility>

namespace ambrelle {

/// Players whose every answer a test gives: at once what `answers` holds, unless it wants to answer by hand.
class RecordingPlayers final : public PlayerSource {
public:
    bool isAvailable() const override { return sentence.isEmpty(); }
    QString whyNot() const override { return sentence; }
    void start() override { ++starts; }
    QList<Player> players() const override { return running; }
    bool notifies() const override { return notifying; }
    bool keepsTime(const QString&) const override { return timekeeping; }
    void query(const QString& player, QObject* context, Answered answered) override
    {
        queries.append(player);
        if (byHand)
            m_asked.append({context, std::move(answered)});
        else
            answered(answers.value(player));
    }
    void artwork(const QString& player, qint64 mostBytes, QObject* context, Delivered delivered) override
    {
        pictures.append(player);
        bounds.append(mostBytes);
        m_wanted.append({context, std::move(delivered)});
    }
    void command(const QString& player, PlayerCommand command) override { commands.append({player, command}); }

    /// Answers the oldest query that waits.
    void answer(const std::optional<PlayerTrack>& track) { m_asked.takeFirst().give(track); }
    /// Hands out the picture that was wanted first, or later.
    void deliver(const QByteArray& picture, qsizetype index = 0) { m_wanted.takeAt(index).give(picture); }

    QList<Player> running;
    QHash<QString, std::optional<PlayerTrack>> answers; ///< by player
    QString sentence; ///< why there are no players
    bool byHand = false;
    bool notifying = true;
    bool timekeeping = true;

    int starts = 0;
    QList<QString> queries; ///< all so far, as are the others
    QList<QString> pictures;
    QList<qint64> bounds; ///< of the pictures
    QList<std::pair<QString, PlayerCommand>> commands;

private:
    template <typename Call> struct Waiting {
        QPointer<QObject> context;
        Call call;

        template <typename Value> void give(const Value& value) const
        {
            if (context)
                call(value);
        }
    };

    QList<Waiting<Answered>> m_asked;
    QList<Waiting<Delivered>> m_wanted;
};

} // namespace ambrelle
