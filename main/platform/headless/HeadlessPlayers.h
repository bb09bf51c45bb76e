#pragma once

#include "platform/PlayerSource.h"

namespace ambrelle {

/// A machine whose players are left alone.
class HeadlessPlayers final : public PlayerSource {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode asks no media player."); }
    void start() override { }
    QList<Player> players() const override { return {}; }
    bool notifies() const override { return true; }
    bool keepsTime(const QString&) const override { return true; }
    void query(const QString&, QObject* context, Answered answered) override
    {
        QMetaObject::invokeMethod(
            context, [answered = std::move(answered)] { answered({}); }, Qt::QueuedConnection);
    }
    void artwork(const QString&, qint64, QObject* context, Delivered delivered) override
    {
        QMetaObject::invokeMethod(
            context, [delivered = std::move(delivered)] { delivered({}); }, Qt::QueuedConnection);
    }
    void command(const QString&, PlayerCommand) override { }
};

} // namespace ambrelle
