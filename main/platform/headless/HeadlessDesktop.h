// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Wording.h"
#include "platform/DesktopPicture.h"
#include "platform/LoginItem.h"
#include "platform/ProgramLauncher.h"
#include "platform/SessionVisibility.h"
#include "platform/SystemAppearance.h"
#include "platform/WindowList.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A machine whose windows nobody can list: nothing is ever covered.
class HeadlessWindowList final : public WindowList {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("The windows of other programs cannot be seen here."); }
    std::optional<QList<OnscreenWindow>> windows() const override { return std::nullopt; }
    void setWatching(bool) override { }
};

/// A desktop that is never locked.
class HeadlessSessionVisibility final : public SessionVisibility {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("Nothing here tells whether the screen is locked."); }
    bool isVisible() const override { return true; }
};

/// Always light, and nothing ever tells otherwise.
class HeadlessAppearance final : public SystemAppearance {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode does not follow the desktop's appearance."); }
    bool isDark() const override { return false; }
};

/// A desktop whose picture cannot be set or told.
class HeadlessDesktopPicture final : public DesktopPicture {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("There is no way to set the picture of this desktop."); }
    bool isPerScreen() const override { return false; }

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

/// A desktop whose programs are left alone.
class HeadlessPrograms final : public ProgramLauncher {
public:
    bool has(const QString&) const override { return false; }
    void open(const QString&) override { }
    QString openFolder(const QString&) override { return Wording::tr("This mode opens no folders."); }
    void showInFolder(const QString&, Done done) override { done(Wording::tr("This mode opens no folders.")); }
};

/// A machine that nobody logs in to.
class HeadlessLoginItem final : public LoginItem {
public:
    Status status() const override { return Status::unavailable; }
    QString whyNot() const override { return Wording::tr("This mode is not started at login."); }
    QString setEnabled(bool) override { return refusal() + u": "_s + whyNot(); }
};

/// A desktop that cannot be looked at or changed.
struct HeadlessDesktop {
    HeadlessWindowList otherWindows;
    HeadlessSessionVisibility visibility;
    HeadlessAppearance appearance;
    HeadlessDesktopPicture picture;
    HeadlessPrograms programs;
    HeadlessLoginItem loginItem;
};

} // namespace ambrelle
