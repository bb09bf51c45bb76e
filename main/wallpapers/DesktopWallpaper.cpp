// SPDX-License-Identifier: MIT

#include "wallpapers/DesktopWallpaper.h"

#include "foundation/BackgroundThread.h"
#include "foundation/UserDefaults.h"
#include "foundation/WholeFile.h"
#include "foundation/Wording.h"
#include "platform/DesktopPicture.h"

#include <QDir>
#include <QFileInfo>
#include <QtConcurrentRun>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString previousKey = u"desktopPicture.previous"_s; ///< what the desktop showed before
const QString currentKey = u"desktopPicture.current"_s; ///< the file last set on the main screen

/// With a fractional ratio the toolkit rounds the points, which loses up to a pixel; displays have even sizes.
int nativeLength(double points, double pixelRatio)
{
    const double length = points * pixelRatio;
    return static_cast<int>(pixelRatio == std::floor(pixelRatio) ? length : 2 * std::round(length / 2));
}

QSize pixels(const ScreenInfo& screen)
{
    return {
        nativeLength(screen.frame.width(), screen.pixelRatio), nativeLength(screen.frame.height(), screen.pixelRatio)};
}

std::optional<QString> fileFor(const QList<ScreenPicture>& pictures, const QString& connector)
{
    const auto found = std::ranges::find(pictures, connector, &ScreenPicture::connector);
    return found == pictures.end() ? std::nullopt : std::optional(found->file);
}

/// Why the bytes are not in the file, or empty.
QString writeFile(const QString& path, const QByteArray& bytes)
{
    const QString reason = writeWhole(path, bytes);
    return reason.isEmpty() ? reason : Wording::tr("“%1” cannot be written: %2.").arg(path, reason);
}

/// Why the skin's wallpaper of that size is not in the file, or empty; what is there already is kept.
QString paintFile(const Wallpaper& wallpaper, Skin skin, QSize size, const QString& path)
{
    if (QFileInfo(path).size() > 0)
        return {};
    const QByteArray png = wallpaper.png(skin, size);
    if (png.isEmpty())
        return Wording::tr("A picture of %1 by %2 pixels cannot be made.").arg(size.width()).arg(size.height());
    return writeFile(path, png);
}

QString installExtra(const QString& extra, const QString& installed)
{
    if (QFileInfo::exists(installed))
        return {};
    QFile file(extra);
    if (!file.open(QIODevice::ReadOnly))
        return Wording::tr("“%1” cannot be read: %2.").arg(extra, file.errorString());
    return writeFile(installed, file.readAll());
}

} // namespace

DesktopWallpaper::DesktopWallpaper(
    Wallpaper wallpaper, WindowHost& host, DesktopPicture& picture, UserDefaults& defaults, Folders folders)
    : m_wallpaper(std::move(wallpaper))
    , m_host(host)
    , m_picture(picture)
    , m_defaults(defaults)
    , m_folders(std::move(folders))
{
    m_places = places(m_host.screens());
    m_painter.setMaxThreadCount(1); // each picture is painted on all processors
}

DesktopWallpaper::~DesktopWallpaper() = default;

void DesktopWallpaper::apply(Skin skin, const QList<ScreenInfo>& screens, const Done& done)
{
    Sizes sizes;
    QList<ScreenPicture> pictures;
    for (const ScreenInfo& screen : screens)
        pictures.append(ordered(skin, screen, sizes));
    paint(pictures, sizes, done);
}

/// The skin's picture for that screen, its size noted in `sizes`.
ScreenPicture DesktopWallpaper::ordered(Skin skin, const ScreenInfo& screen, Sizes& sizes) const
{
    const QSize size = pixels(screen);
    const QString path = m_folders.wallpapers + u'/' + Wallpaper::fileName(skin, size);
    sizes.insert(path, size);
    return {screen.connector, path};
}

void DesktopWallpaper::paint(const QList<ScreenPicture>& pictures, const Sizes& sizes, const Done& done)
{
    const auto files = [wallpaper = m_wallpaper, sizes] {
        QString error;
        for (auto file = sizes.begin(); file != sizes.end() && error.isEmpty(); ++file) {
            if (const std::optional<Skin> skin = Wallpaper::skinOf(file.key()))
                error = paintFile(wallpaper, *skin, file.value(), file.key());
        }
        return error;
    };
    prepare(pictures, files, done);
}

void DesktopWallpaper::apply(Skin skin, const Done& done)
{
    apply(skin, m_host.screens(), done);
}

void DesktopWallpaper::apply(const QString& file, const Done& done)
{
    const auto readable = [file] {
        return QFileInfo(file).isReadable() ? QString() : Wording::tr("“%1” cannot be read.").arg(file);
    };
    prepare(onEveryScreen(file), readable, done);
}

QStringList DesktopWallpaper::extras() const
{
    if (m_folders.extras.isEmpty())
        return {};
    const QDir folder(m_folders.extras);
    QStringList paths;
    for (const QString& name : folder.entryList({u"*.jpg"_s, u"*.jpeg"_s}, QDir::Files, QDir::Name))
        paths.append(folder.absoluteFilePath(name));
    return paths;
}

QString DesktopWallpaper::installedURL(const QString& extra) const
{
    return m_folders.wallpapers + u"/extra-"_s + QFileInfo(extra).fileName();
}

void DesktopWallpaper::applyExtra(const QString& extra, const Done& done)
{
    const QString installed = installedURL(extra);
    prepare(
        onEveryScreen(installed), [extra, installed] { return installExtra(extra, installed); }, done);
}

QList<ScreenPicture> DesktopWallpaper::onEveryScreen(const QString& file) const
{
    QList<ScreenPicture> pictures;
    for (const ScreenInfo& screen : m_host.screens())
        pictures.append({screen.connector, file});
    return pictures;
}

void DesktopWallpaper::refresh(const std::function<void()>& then)
{
    const QList<ScreenInfo> screens = m_host.screens();
    if (screens.isEmpty() || !m_picture.isAvailable())
        return then();
    m_picture.read(screens.first().connector, [this, then, changes = m_changes](const QString& file) {
        if (changes == m_changes)
            setCurrent(file);
        then();
    });
}

void DesktopWallpaper::restore(const std::function<Skin(Skin)>& choose)
{
    if (m_host.screens().isEmpty()) {
        m_restore = [this, choose] { restore(choose); };
        return;
    }
    const QString last = m_defaults.string(currentKey).value_or(QString());
    if (last.isEmpty() || !m_picture.isAvailable())
        return;
    refresh([this, last, choose] {
        if (m_asked || !m_current.isEmpty())
            return;
        m_picture.remember(m_folders.wallpapers, [this, last, choose](const QJsonObject& memory) {
            if (m_asked || !m_current.isEmpty() || !memory.isEmpty())
                return; // another picture shows, though nothing tells its file
            if (const std::optional<Skin> skin = Wallpaper::skinOf(last))
                apply(choose ? choose(*skin) : *skin);
            else
                apply(last);
        });
    });
}

void DesktopWallpaper::fitScreens()
{
    const QList<ScreenInfo> screens = m_host.screens();
    if (const auto restoreNow = screens.isEmpty() ? nullptr : std::exchange(m_restore, nullptr))
        restoreNow();
    const Places now = places(screens);
    if (screens.isEmpty() || !m_picture.isAvailable())
        return notePlaces(now);
    const auto stayed = [&](const ScreenInfo& screen) {
        return m_places.value(screen.connector) == now.value(screen.connector);
    };
    if (!std::ranges::all_of(screens, stayed))
        return refresh([this, screens] { readAll(screens, {}, m_changes); });
    notePlaces(now); // some may have gone, or another is the main one
    refresh([] {});
}

/// Asks for the pictures of the screens one by one, and then fits them.
void DesktopWallpaper::readAll(const QList<ScreenInfo>& screens, const QStringList& shown, int changes)
{
    if (screens != m_host.screens())
        return; // fitScreens() was called again for that, or will be
    if (changes != m_changes)
        return fitScreens();
    if (shown.size() == screens.size())
        return fit(screens, shown);
    m_picture.read(screens.at(shown.size()).connector,
        [this, screens, shown, changes](const QString& file) { readAll(screens, shown + QStringList{file}, changes); });
}

/// Gives the screens that came, moved or changed their size of what they show, where that is ours.
void DesktopWallpaper::fit(const QList<ScreenInfo>& screens, const QStringList& shown)
{
    const Places now = places(screens);
    const Places before = m_places;
    notePlaces(now);
    const QList<ScreenPicture> asked = m_asked.value_or(QList<ScreenPicture>());
    const auto isPainted = [this](const QString& file) { return isOurs(file) && Wallpaper::skinOf(file); };
    if (m_asked && (asked.isEmpty() || !std::ranges::all_of(asked, [](const ScreenPicture& picture) {
            return Wallpaper::skinOf(picture.file).has_value();
        })))
        return; // no wallpaper of a skin is about to show

    Sizes sizes;
    QList<ScreenPicture> pictures;
    bool isWanted = false;
    QString main;
    for (qsizetype i = 0; i < screens.size(); ++i) {
        const QString& connector = screens[i].connector;
        const std::optional<QString> coming = fileFor(asked, connector);
        QString file = coming.value_or(shown[i]);
        if (i == 0)
            main = file;
        else if (!before.contains(connector) && (!isPainted(file) || shown.count(file) > 1))
            file = main; // it was never seen, and some desktops tell of such a screen what another one shows
        const bool hasChanged = before.value(connector) != now.value(connector);
        // The main screen leads in any case: a desktop with one picture for all takes the first.
        if (isPainted(file) && (i == 0 || hasChanged || coming)) {
            pictures.append(ordered(*Wallpaper::skinOf(file), screens[i], sizes));
            isWanted |= hasChanged;
        }
    }
    if (isWanted && pictures != asked)
        paint(pictures, sizes, {});
}

DesktopWallpaper::Places DesktopWallpaper::places(const QList<ScreenInfo>& screens) const
{
    Places places;
    for (const ScreenInfo& screen : screens)
        places.insert(screen.connector, {m_host.toolkitRect(screen.frame), screen.pixelRatio});
    return places;
}

/// Screens that have gone stay known, as being nowhere.
void DesktopWallpaper::notePlaces(const Places& now)
{
    for (Place& place : m_places)
        place = {};
    m_places.insert(now);
}

bool DesktopWallpaper::hasPrevious() const
{
    return m_defaults.object(previousKey).has_value();
}

void DesktopWallpaper::giveBackPrevious(const Done& done)
{
    const std::optional<QJsonObject> memory = m_defaults.object(previousKey);
    if (!memory)
        return done ? done(Wording::tr("No earlier desktop picture is remembered.")) : void();
    m_picture.giveBack(*memory, [this, request = begin({}), done](const QString& error) {
        if (end(request) && error.isEmpty()) {
            m_defaults.remove(previousKey);
            m_defaults.remove(currentKey);
            setCurrent({});
        }
        if (done)
            done(error);
    });
}

/// Makes the files on another thread, then shows them.
void DesktopWallpaper::prepare(const QList<ScreenPicture>& pictures, const Preparation& files, const Done& done)
{
    const Done answer = done ? done : [](const QString&) {};
    if (!m_picture.isAvailable())
        return answer(m_picture.whyNot());
    if (pictures.isEmpty())
        return answer(Wording::tr("No screen is connected."));
    const int request = begin(pictures);
    const auto work = [files] {
        yieldToOthers();
        return files();
    };
    QtConcurrent::run(&m_painter, work).then(this, [this, request, pictures, answer](const QString& error) {
        if (!error.isEmpty())
            return answer(end(request) ? error : QString());
        if (request != m_request)
            return answer({});
        rememberPrevious(
            pictures.first().connector, [this, request, pictures, answer] { show(request, pictures, answer); });
    });
}

/// The file that the list has for the main screen; none if it is about others only.
std::optional<QString> DesktopWallpaper::mainFile(const QList<ScreenPicture>& pictures) const
{
    const QList<ScreenInfo> screens = m_host.screens();
    return screens.isEmpty() ? std::nullopt : fileFor(pictures, screens.first().connector);
}

QString DesktopWallpaper::wanted() const
{
    if (!m_asked)
        return m_current;
    return m_asked->isEmpty() ? QString() : mainFile(*m_asked).value_or(m_current);
}

/// Notes that the pictures are asked for, and gives the number of the request.
int DesktopWallpaper::begin(const QList<ScreenPicture>& pictures)
{
    m_asked = pictures;
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
    return true;
}

/// Keeps what the user had on the desktop; a picture of our own is nothing to give back.
void DesktopWallpaper::rememberPrevious(const QString& connector, const std::function<void()>& then)
{
    m_picture.read(connector, [this, then](const QString& file) {
        if (isOurs(file) || (file.isEmpty() && hasPrevious()))
            return then();
        m_picture.remember(m_folders.wallpapers, [this, then](const QJsonObject& memory) {
            if (!memory.isEmpty())
                m_defaults.set(previousKey, memory);
            then();
        });
    });
}

void DesktopWallpaper::show(int request, const QList<ScreenPicture>& pictures, const Done& done)
{
    if (request != m_request)
        return done({});
    m_picture.set(pictures, [this, request, file = mainFile(pictures), done](const QString& error) {
        if (end(request) && error.isEmpty() && file) {
            m_defaults.set(currentKey, *file);
            setCurrent(*file);
        }
        done(error);
    });
}

bool DesktopWallpaper::isOurs(const QString& file) const
{
    return !file.isEmpty() && (file == m_defaults.string(currentKey) || QFileInfo(file).path() == m_folders.wallpapers);
}

void DesktopWallpaper::setCurrent(const QString& file)
{
    if (file == m_current)
        return;
    m_current = file;
    Q_EMIT changed();
}

} // namespace ambrelle
