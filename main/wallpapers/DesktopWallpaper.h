// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "platform/DesktopPicture.h"
#include "platform/WindowHost.h"
#include "wallpapers/Wallpaper.h"
#include "wallpapers/WallpaperNotes.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QThreadPool>

#include <functional>

namespace ambrelle {

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
    using SkinChoice = std::function<Skin(Skin)>;
    /// What the screens showed at some moment, ours or the user's, for giveBack().
    struct Memory {
        QJsonObject desktop; ///< as the port told it; empty: that is not known
        QHash<QString, QString> files; ///< by connector, where they are known
        std::optional<QJsonObject> previous; ///< what hasPrevious() was about
        QString current; ///< the file last set on the main screen

        bool isKnown() const { return !desktop.isEmpty(); }
    };
    using Remembered = std::function<void(const Memory& memory)>;

    DesktopWallpaper(
        Wallpaper wallpaper, WindowHost& host, DesktopPicture& picture, UserDefaults& defaults, Folders folders);
    ~DesktopWallpaper() override;

    /// Gives each of the screens the skin's wallpaper in its own size, or all of them where they show one picture. What
    /// was asked for other screens before, and does not show yet, still comes to them. `before` gets what they showed
    /// until then, as remember() does, at the last moment; it is not called when a later call took the place of this
    /// one, or nothing could be painted.
    void apply(Skin skin, const QList<ScreenInfo>& screens, const Done& done = {}, const Remembered& before = {});
    void apply(Skin skin, const Done& done = {}); ///< on all screens
    /// Gives every screen that picture.
    void apply(const QString& file, const Done& done = {}, const Remembered& before = {});

    const QString& extrasFolder() const { return m_folders.extras; }
    /// The pictures shipped in a folder, as absolute paths; empty without one. Any thread may ask.
    static QStringList extrasIn(const QString& folder);
    /// Where the copy of a shipped picture is kept, so that it outlives the program.
    QString installedURL(const QString& extra) const;
    void applyExtra(const QString& extra, const Done& done = {}, const Remembered& before = {});

    /// The picture on the main screen as far as it was last known; empty when nothing tells it.
    QString currentURL() const { return m_current; }
    std::optional<Skin> currentSkin() const { return Wallpaper::skinOf(m_current); }
    /// The skin of the picture that was asked for last, while it is not shown yet; else currentSkin().
    std::optional<Skin> wantedSkin() const { return Wallpaper::skinOf(wanted()); }
    /// The same for the picture on one screen.
    QString currentURL(const ScreenInfo& screen) const { return m_shown.value(screen.connector); }
    std::optional<Skin> currentSkin(const ScreenInfo& screen) const { return Wallpaper::skinOf(currentURL(screen)); }
    std::optional<Skin> wantedSkin(const ScreenInfo& screen) const;
    bool isPerScreen() const { return m_picture.isPerScreen(); } ///< screens may show different pictures
    /// Asks the desktop again, then calls `then`.
    void refresh(const std::function<void()>& then);

    /// Shows what the last run was asked for and could not show before it ended; else brings back its picture where the
    /// desktop itself forgot it and shows none. If it is a skin's, the one of the skin that `choose` names for it, at
    /// the moment when it is wanted. While no screen is connected that waits for fitScreens().
    void restore(const SkinChoice& choose = {});
    /// Screens came or changed: those that moved, changed or came back get their own size of the skin's wallpaper that
    /// they show, and those never seen before, or of which nothing is told any more, what the main screen shows.
    /// Pictures that are not a skin's stay, and so do screens of which only the work area changed.
    void fitScreens();

    /// Whether a picture of the user's own is remembered from before the program set one.
    bool hasPrevious() const;
    void giveBackPrevious(const Done& done = {});

    /// Finds out what the desktop shows now, with a picture under way not yet. One memory is good at a time: what it
    /// has to keep in a file, the next one may write over.
    void remember(const Remembered& then);
    /// Makes the desktop show what it showed then; screens that have gone are left out.
    void giveBack(const Memory& memory, const Done& done = {});

Q_SIGNALS:
    void changed(); ///< currentURL() gives another answer than before, of whatever screen

private:
    using Preparation = std::function<QString()>;
    using Files = QHash<QString, QString>; ///< by connector

    using Sizes = QMap<QString, QSize>; ///< in pixels, of the files to be painted
    struct Place {
        QRectF rect; ///< in the toolkit's coordinates; null: not connected
        double pixelRatio = 0;

        bool operator==(const Place&) const = default;
    };
    using Places = QHash<QString, Place>; ///< by connector

    QString wanted() const;
    static std::optional<QString> fileFor(const QList<ScreenPicture>& pictures, const QString& connector);
    std::optional<QString> mainFile(const QList<ScreenPicture>& pictures) const;
    QList<ScreenPicture> stillConnected(const QList<ScreenPicture>& pictures) const;
    QList<ScreenPicture> stillAsked(const QList<ScreenPicture>& pictures) const;
    int begin(const QList<ScreenPicture>& pictures);
    bool end(int request);
    void prepare(QList<ScreenPicture> pictures, Preparation files, const Done& done, const Remembered& before = {});
    ScreenPicture ordered(Skin skin, const ScreenInfo& screen, Sizes& sizes) const;
    void paint(const QList<ScreenPicture>& pictures, const Sizes& sizes, const QStringList& others,
        const Done& done = {}, const Remembered& before = {});
    void bringBack(const WallpaperNotes::Unfinished& unfinished, const QString& last, const SkinChoice& choose);
    void readAll(const QList<ScreenInfo>& screens, const QStringList& shown, int changes);
    void fit(const QList<ScreenInfo>& screens, const QStringList& shown);
    Places places(const QList<ScreenInfo>& screens) const;
    void notePlaces(const Places& now);
    QList<ScreenPicture> onEveryScreen(const QString& file) const;
    void rememberPrevious(const QString& connector, const std::function<void()>& then);
    void show(int request, const QList<ScreenPicture>& asked, const Done& done);
    void noteSet(const QList<ScreenPicture>& pictures, const QList<ScreenPicture>& asked);
    bool isOurs(const QString& file) const;
    void setShown(const QString& main, const Files& shown);

    Wallpaper m_wallpaper;
    WindowHost& m_host;
    DesktopPicture& m_picture;
    WallpaperNotes m_notes;
    Folders m_folders;
    QString m_current;
    Files m_shown; ///< as far as it was last known
    std::optional<QList<ScreenPicture>> m_asked; ///< under way; empty: the user's own picture, wherever that is
    Preparation m_preparing; ///< makes the files of m_asked
    QSet<QString> m_painted; ///< connectors that were last given a skin's wallpaper, those that went meanwhile too
    Places m_places; ///< where the screens were, of all that were ever connected
    std::function<void()> m_restore; ///< waits for a screen; else null
    int m_request = 0; ///< a newer one makes older ones void
    int m_changes = 0; ///< requests begun and ended; what the desktop told before is out of date
    QThreadPool m_painter;
    SerialWorker m_files{*this}; ///< what has not to wait for the painter
};

} // namespace ambrelle
