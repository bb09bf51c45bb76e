// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Choice.h"
#include "foundation/SerialWorker.h"
#include "model/Skin.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <variant>

namespace ambrelle {

class DesktopWallpaper;

/// Another wallpaper than the one on the desktop, by chance. Main thread only; what is on disks, which may be slow or
/// not answer at all, is looked up on another.
class WallpaperShuffle final : public QObject {
public:
    struct Extra {
        QString path; ///< of the shipped picture

        bool operator==(const Extra&) const = default;
    };
    struct Custom {
        QString path;

        bool operator==(const Custom&) const = default;
    };
    using Candidate = std::variant<Skin, Extra, Custom>;
    /// What there is besides the skins' wallpapers.
    struct Pictures {
        QStringList extras;
        QStringList own;
    };
    /// Finds the shipped pictures of a folder, and those of the user's own that can be read; called on any thread.
    using Look = std::function<Pictures(const QString& extrasFolder, const QStringList& own)>;
    static Pictures look(const QString& extrasFolder, const QStringList& own);

    explicit WallpaperShuffle(DesktopWallpaper& wallpaper, Look look = WallpaperShuffle::look);

    /// Everything that could take the place of what is known to be on the desktop: the skins' wallpapers and these
    /// pictures.
    static QList<Candidate> candidates(const DesktopWallpaper& wallpaper, const Pictures& pictures);

    /// Looks what there is, asks the desktop what it shows and puts one of the candidates there; does nothing when
    /// there is none, or while it still looks for an earlier call.
    void shuffle(const QStringList& own, const Choice& choose = chooseAtRandom);

private:
    DesktopWallpaper& m_wallpaper;
    Look m_look;
    bool m_isLooking = false;
    SerialWorker m_worker{*this};
};

} // namespace ambrelle
