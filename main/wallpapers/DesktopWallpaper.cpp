// SPDX-License-Identifier: MIT

#include "wallpapers/DesktopWallpaper.h"

#include "foundation/BackgroundThread.h"
#include "foundation/Wording.h"
#include "platform/DesktopPicture.h"

#include <QFileInfo>
#include <QtConcurrentRun>

#include <algorithm>
#include <utility>

namespace ambrelle {

DesktopWallpaper::DesktopWallpaper(
    Wallpaper wallpaper, WindowHost& host, DesktopPicture& picture, UserDefaults& defaults, Folders folders)
    : m_wallpaper(std::move(wallpaper))
    , m_host(host)
    , m_picture(picture)
    , m_notes(defaults)
    , m_folders(std::move(folders))
{
    m_places = places(m_host.screens());
    m_painter.setMaxThreadCount(1); // each picture is painted on all processors
}

DesktopWallpaper::~DesktopWallpaper() = default;

void DesktopWallpaper::refresh(const std::function<void()>& then)
{
    struct Round {
        qsizetype missing;
        Files files{};
    };
    QStringList connectors;
    for (const ScreenInfo& screen : m_host.screens())
        connectors.append(screen.connector);
    if (connectors.isEmpty() || !m_picture.isAvailable())
        return then();
    const auto round = std::make_shared<Round>(isPerScreen() ? connectors.size() : 1);
    const bool isNew = !m_places.contains(connectors.first());
    const auto told = [this, round, then, connectors, isNew, changes = m_changes](
                          const QString& connector, const QString& file) {
        round->files.insert(connector, file);
        if (--round->missing > 0)
            return;
        const QString main = round->files.value(connectors.first());
        for (const QString& each : connectors)
            round->files.insert(each, isPerScreen() ? round->files.value(each) : main);
        // A wallpaper of ours goes on to a main screen that was never seen.
        if (changes == m_changes)
            setShown(isNew && main.isEmpty() && isOurs(m_current) ? m_current : main, round->files);
        then();
    };
    for (const QString& connector : connectors.first(round->missing))
        m_picture.read(connector, [told, connector](const QString& file) { told(connector, file); });
}

void DesktopWallpaper::restore(const SkinChoice& choose)
{
    if (m_host.screens().isEmpty()) {
        m_restore = [this, choose] { restore(choose); };
        return;
    }
    const QString last = m_notes.current();
    const WallpaperNotes::Unfinished unfinished = m_notes.unfinished();
    if ((last.isEmpty() && unfinished.files.isEmpty()) || !m_picture.isAvailable())
        return;
    refresh([this, last, unfinished, choose] {
        if (m_asked)
            return;
        if (!m_current.isEmpty())
            return bringBack(unfinished, {}, choose);
        m_picture.remember(m_folders.wallpapers, [this, last, unfinished, choose](const QJsonObject& memory) {
            if (m_asked)
                return;
            // Another picture may show, though nothing tells its file.
            const bool isForgotten = m_current.isEmpty() && memory.isEmpty();
            bringBack(unfinished, isForgotten ? last : QString(), choose);
        });
    });
}

/// Makes the files on another thread, then shows them.
void DesktopWallpaper::prepare(
    QList<ScreenPicture> pictures, Preparation files, const Done& done, const Remembered& before)
{
    const Done answer = done ? done : [](const QString&) {};
    if (!m_picture.isAvailable())
        return answer(m_picture.whyNot());
    if (pictures.isEmpty())
        return answer(Wording::tr("No screen is connected."));
    if (const QList<ScreenPicture> others = stillAsked(pictures); !others.isEmpty()) {
        pictures += others;
        files = [before = m_preparing, files] {
            before(); // what is missing then is told when it is to be set
            return files();
        };
    }
    m_preparing = files;
    const int request = begin(pictures);
    const auto work = [files] {
        yieldToOthers();
        return files();
    };
    QtConcurrent::run(&m_painter, work).then(this, [this, request, pictures, answer, before](const QString& error) {
        if (!error.isEmpty())
            return answer(end(request) ? error : QString());
        if (request != m_request)
            return answer({});
        const auto set = [this, request, pictures, answer] {
            rememberPrevious(
                pictures.first().connector, [this, request, pictures, answer] { show(request, pictures, answer); });
        };
        if (!before)
            return set();
        remember([this, request, answer, before, set](const Memory& memory) {
            if (request != m_request)
                return answer({});
            before(memory);
            set();
        });
    });
}

std::optional<QString> DesktopWallpaper::fileFor(const QList<ScreenPicture>& pictures, const QString& connector)
{
    const auto found = std::ranges::find(pictures, connector, &ScreenPicture::connector);
    return found == pictures.end() ? std::nullopt : std::optional(found->file);
}

/// The file that the list has for the main screen; none if it is about others only.
std::optional<QString> DesktopWallpaper::mainFile(const QList<ScreenPicture>& pictures) const
{
    const QList<ScreenInfo> screens = m_host.screens();
    if (!isPerScreen() && !pictures.isEmpty())
        return pictures.first().file;
    return screens.isEmpty() ? std::nullopt : fileFor(pictures, screens.first().connector);
}

QString DesktopWallpaper::wanted() const
{
    if (!m_asked)
        return m_current;
    return m_asked->isEmpty() ? QString() : mainFile(*m_asked).value_or(m_current);
}

std::optional<Skin> DesktopWallpaper::wantedSkin(const ScreenInfo& screen) const
{
    if (!m_asked)
        return currentSkin(screen);
    if (m_asked->isEmpty())
        return std::nullopt;
    return isPerScreen() ? Wallpaper::skinOf(fileFor(*m_asked, screen.connector).value_or(currentURL(screen)))
                         : Wallpaper::skinOf(m_asked->first().file);
}

/// What is under way for other screens than these, on a desktop that tells screens apart.
QList<ScreenPicture> DesktopWallpaper::stillAsked(const QList<ScreenPicture>& pictures) const
{
    QList<ScreenPicture> others;
    if (!isPerScreen() || !m_asked)
        return others;
    for (const ScreenInfo& screen : m_host.screens()) {
        const std::optional<QString> asked = fileFor(*m_asked, screen.connector);
        if (asked && !fileFor(pictures, screen.connector))
            others.append({screen.connector, *asked});
    }
    return others;
}

/// Notes that the pictures are asked for, and gives the number of the request.
int DesktopWallpaper::begin(const QList<ScreenPicture>& pictures)
{
    m_asked = pictures;
    WallpaperNotes::Unfinished unfinished;
    for (const ScreenPicture& picture : pictures) {
        unfinished.files.insert(picture.connector, picture.file);
        if (const QString shown = m_shown.value(picture.connector); !shown.isEmpty())
            unfinished.shown.insert(picture.connector, shown);
    }
    m_notes.setUnfinished(unfinished);
    ++m_changes;
    return ++m_request;
}

/// Whether nothing newer was asked for meanwhile.
bool DesktopWallpaper::end(int request)
{
    ++m_changes;
    if (request != m_request)
        return false;
    m_asked.reset();
    m_notes.setUnfinished({});
    return true;
}

/// Those of screens that have not gone meanwhile; all of them when every one has.
QList<ScreenPicture> DesktopWallpaper::stillConnected(const QList<ScreenPicture>& pictures) const
{
    const QList<ScreenInfo> screens = m_host.screens();
    QList<ScreenPicture> connected = pictures;
    connected.removeIf([&](const ScreenPicture& picture) {
        return std::ranges::find(screens, picture.connector, &ScreenInfo::connector) == screens.end();
    });
    return connected.isEmpty() ? pictures : connected;
}

void DesktopWallpaper::show(int request, const QList<ScreenPicture>& asked, const Done& done)
{
    if (request != m_request)
        return done({});
    const QList<ScreenPicture> pictures = stillConnected(asked);
    m_picture.set(pictures, [this, request, pictures, asked, done](const QString& error) {
        {
            const UserDefaults::Transaction whole = m_notes.asOne();
            end(request);
            if (error.isEmpty()) // it shows, though another one may be on its way
                noteSet(pictures, asked);
        }
        done(error);
    });
}

/// The pictures are set, of those that were asked for.
void DesktopWallpaper::noteSet(const QList<ScreenPicture>& pictures, const QList<ScreenPicture>& asked)
{
    Files shown = m_shown;
    for (const ScreenPicture& picture : pictures)
        shown.insert(picture.connector, picture.file);
    for (QString& file : shown)
        file = isPerScreen() ? file : pictures.first().file;
    const std::optional<QString> main = mainFile(pictures);
    if (main)
        m_notes.setCurrent(*main);
    setShown(main.value_or(m_current), shown);
    for (const ScreenPicture& picture : asked) {
        if (Wallpaper::skinOf(picture.file))
            m_painted.insert(picture.connector);
    }
}

bool DesktopWallpaper::isOurs(const QString& file) const
{
    return !file.isEmpty() && (file == m_notes.current() || QFileInfo(file).path() == m_folders.wallpapers);
}

void DesktopWallpaper::setShown(const QString& main, const Files& shown)
{
    if (main == m_current && shown == m_shown)
        return;
    m_current = main;
    m_shown = shown;
    m_painted.removeIf([&](const QString& connector) {
        const bool wasThere = m_places.value(connector) != Place{};
        return wasThere && shown.contains(connector) && !isOurs(shown[connector]);
    });
    Q_EMIT changed();
}

} // namespace ambrelle
