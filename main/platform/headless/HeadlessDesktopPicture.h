#pragma once

#include "platform/DesktopPicture.h"

namespace ambrelle {

/// A desktop whose picture cannot be set or told.
class HeadlessDesktopPicture final : public DesktopPicture {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("There is no way to set the picture of this desktop."); }

    void set(const QList<ScreenPicture>&, Done done) override { refuse(std::move(done)); }
    void read(const QString&, std::function<void(const QString&)> done) override
    {
        later([done = std::move(done)] { done({}); });
    }
    void remember(const QString&, std::function<void(const QJsonObject&)> done) override
    {
        later([done = std::move(done)] { done({}); });
    }
    void giveBack(const QJsonObject&, Done done) override { refuse(std::move(done)); }

private:
    void refuse(Done done)
    {
        later([this, done = std::move(done)] { done(whyNot()); });
    }
    void later(std::function<void()> answer)
    {
        QMetaObject::invokeMethod(this, std::move(answer), Qt::QueuedConnection);
    }
};

} // namespace ambrelle
