// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/UserDefaults.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingWindowHost.h"
#include "support/AnswerOf.h"
#include "support/PlainWallpaper.h"
#include "support/TestFolder.h"
#include "wallpapers/DesktopWallpaper.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Two screens that show a picture of the user's own.
struct PictureDesk : testing::Test {
    PictureDesk()
    {
        ScreenInfo left;
        left.connector = u"LEFT"_s;
        left.frame = QRectF(0, 0, 400.5, 300);
        left.pixelRatio = 2;
        ScreenInfo right;
        right.connector = u"RIGHT"_s;
        right.frame = QRectF(400, 0, 640, 480);
        host.setScreens({left, right});
        picture.shown = {{u"LEFT"_s, u"/home/user/holiday.jpg"_s}, {u"RIGHT"_s, u"/home/user/holiday.jpg"_s}};
        picture.memory = {{u"uri"_s, u"holiday"_s}};
        wallpaper.fitScreens(); // they came
    }

    QString path(const QString& name) const { return folder.filePath(u"Wallpapers/"_s + name); }
    QStringList files() const { return QDir(folder.filePath(u"Wallpapers"_s)).entryList(QDir::Files | QDir::Hidden); }

    /// With a skin or a file; gives what went wrong.
    QString apply(const auto& what)
    {
        return answerOf<QString>([&](const auto& done) { wallpaper.apply(what, done); }, Answered::anyTime);
    }
    QString giveBackPrevious()
    {
        return answerOf<QString>([this](const auto& done) { wallpaper.giveBackPrevious(done); }, Answered::anyTime);
    }

    const TestFolder folder;
    RecordingWindowHost host;
    RecordingDesktopPicture picture;
    UserDefaults defaults = UserDefaults::temporary();
    const PlainWallpaper plain;
    const Wallpaper painter = plain.painter();
    DesktopWallpaper::Folders folders{folder.filePath(u"Wallpapers"_s), folder.filePath(u"Extras"_s)};
    DesktopWallpaper wallpaper{painter, host, picture, defaults, folders};
};

} // namespace ambrelle
