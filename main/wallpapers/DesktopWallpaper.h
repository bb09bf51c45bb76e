// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"
#include "wallpapers/Wallpaper.h"

#include <QObject>
#include <QThreadPool>

#include <functional>

namespace ambrelle {

class DesktopPicture;
class UserDefaults;
struct ScreenPicture;

/// The wallpaper on the user's desktop: paints what is missing in the background, has it shown, and knows which one it
/// is. Main thread only; nothing here blocks.
class DesktopWallpaper : public QObject {
    Q_OBJECT
public:
    struct Folders {
        QString wallpapers; ///< full-size pictures are written here; made when missing
        QString extras; ///< pictures shipped with the program; may be missing
    };
    /// Gets one sentence why it did not work, empty when it did or a later call took its place. On failure the old
    /// picture stays.
    using Done = std::function<void(const QString& error)>;

    DesktopWallpaper(
        Wallpaper wallpaper, WindowHost& host, DesktopPicture& picture, UserDefaults& defaults, Folders folders);
    ~DesktopWallpaper() override;

    /// Gives each of the screens the skin's wallpaper in its own size.
    void apply(Skin skin, const QList<ScreenInfo>& screens, const Done& done = {});
    void apply(Skin skin, const Done& done = {}); ///< on all screens
    /// Gives every screen that picture.
    void apply(const QString& file, const Done& done = {});

    /// The shipped pictures, as absolute paths.
    QStringList extras() const;
    /// Where the copy of a shipped picture is kept, so that it outlives the program.
    QString installedURL(const QString& extra) const;
    void applyExtra(const QString& extra, const Done& done = {});

    /// The picture on the main screen as far as it was last known; empty when nothing tells it.
    QString currentURL() const { return m_current; }
    std::optional<Skin> currentSkin() const { return Wallpaper::skinOf(m_current); }
    /// The skin of the picture that was asked for last, while it is not shown yet; else currentSkin().
    std::optional<Skin> wantedSkin() const { return Wallpaper::skinOf(wanted()); }
    /// Asks the desktop again, then calls `then`.
    void refresh(const std::function<void()>& then);

    /// Brings back the picture of the last run where the desktop itself forgot it and shows none. If it was a skin's,
    /// the one of the skin that `choose` names for it, at the moment when it is wanted.
    void restore(const std::function<Skin(Skin)>& choose = {});
    /// Screens came or changed: if a skin's wallpaper shows, every screen gets its own size of it.
    void fitScreens();

    /// Whether a picture of the user's own is remembered from before the program set one.
    bool hasPrevious() const;
    void giveBackPrevious(const Done& done = {});

Q_SIGNALS:
    void changed(); ///< currentURL() gives another answer than before

private:
    using Preparation = std::function<QString()>;

    QString wanted() const { return m_asked.value_or(m_current); }
    int begin(const QString& file);
    bool end(int request);
    void prepare(const QList<ScreenPicture>& pictures, const Preparation& files, const Done& done);
    QList<ScreenPicture> onEveryScreen(const QString& file) const;
    void rememberPrevious(const QString& connector, const std::function<void()>& then);
    void show(int request, const QList<ScreenPicture>& pictures, const Done& done);
    bool isOurs(const QString& file) const;
    void setCurrent(const QString& file);

    Wallpaper m_wallpaper;
    WindowHost& m_host;
    DesktopPicture& m_picture;
    UserDefaults& m_defaults;
    Folders m_folders;
    QString m_current;
    std::optional<QString> m_asked; ///< under way; empty: the user's own picture, wherever that is
    int m_request = 0; ///< a newer one makes older ones void
    int m_changes = 0; ///< requests begun and ended; what the desktop told before is out of date
    QThreadPool m_painter;
};

} // namespace ambrelle
