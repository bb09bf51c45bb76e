// SPDX-License-Identifier: MIT

#include "window/wallpapers/WallpaperActions.h"

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "platform/ProgramLauncher.h"
#include "window/frame/PreviousPicture.h"
#include "window/frame/Undo.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct WallpaperSetter {
    DesktopWallpaper& wallpaper;
    QList<ScreenInfo> screens;
    DesktopWallpaper::Done done;
    DesktopWallpaper::Remembered before;

    void operator()(Skin skin) const { wallpaper.apply(skin, screens, done, before); }
    void operator()(const WallpaperShuffle::Extra& extra) const { wallpaper.applyExtra(extra.path, done, before); }
    void operator()(const WallpaperShuffle::Custom& own) const { wallpaper.apply(own.path, done, before); }
};

/// Those that get the wallpaper.
QList<ScreenInfo> screensFor(const WindowContext& context, const QString& screen)
{
    const QList<ScreenInfo> all = context.host.screens();
    const auto one = std::ranges::find(all, screen, &ScreenInfo::id);
    return one == all.end() || !context.wallpaper.isPerScreen() ? all : QList<ScreenInfo>{*one};
}

/// Whether they show it by now.
bool isShown(const DesktopWallpaper& wallpaper, const WallpaperChoice& choice, const QList<ScreenInfo>& screens)
{
    if (const Skin* skin = std::get_if<Skin>(&choice))
        return std::ranges::all_of(
            screens, [&](const ScreenInfo& screen) { return wallpaper.currentSkin(screen) == *skin; });
    if (const auto* extra = std::get_if<WallpaperShuffle::Extra>(&choice))
        return wallpaper.currentURL() == wallpaper.installedURL(extra->path);
    return wallpaper.currentURL() == std::get<WallpaperShuffle::Custom>(choice).path;
}

void tryToShowInFolder(const WindowContext& context, const QString& path)
{
    context.programs.showInFolder(path, [context, path](const QString& error) {
        if (!error.isEmpty())
            context.undo.fail(error, [context, path] { tryToShowInFolder(context, path); });
    });
}

QStringList without(QStringList paths, const QStringList& gone)
{
    paths.removeIf([&](const QString& path) { return gone.contains(path); });
    return paths;
}

QString refusalOf(const QStringList& files)
{
    if (files.size() == 1)
        return Wording::tr("“%1” isn't a picture").arg(foreignText(QFileInfo(files.first()).fileName()));
    return Wording::tr("%n files aren't pictures", nullptr, static_cast<int>(files.size()));
}

} // namespace

struct WallpaperActions::Order {
    WallpaperChoice wallpaper;
    QString screen;
    int number;
};

/// What outlives the window.
struct WallpaperActions::Round {
    WindowContext with;
    QPointer<WallpaperActions> shown;
    int last = 0; ///< number of the latest order
};

WallpaperActions::WallpaperActions(const WindowContext& context, QObject* parent)
    : QObject(parent)
    , m_with(context)
    , m_round(std::make_shared<Round>(context, this))
    , m_work(context.clock, [this] { Q_EMIT workingChanged(); })
{
}

void WallpaperActions::set(const WallpaperChoice& wallpaper, const QString& screen)
{
    start(m_round, wallpaper, screen);
}

void WallpaperActions::start(
    const std::shared_ptr<Round>& round, const WallpaperChoice& wallpaper, const QString& screen)
{
    const WindowContext& with = round->with;
    with.undo.beginPicture();
    const bool isPainted = std::holds_alternative<Skin>(wallpaper);
    if (round->shown)
        round->shown->m_work.begin({wallpaper, isPainted ? static_cast<int>(screensFor(with, screen).size()) : 1});
    carryOut(round, {wallpaper, screen, ++round->last});
}

void WallpaperActions::carryOut(const std::shared_ptr<Round>& round, const Order& order)
{
    const QList<ScreenInfo> screens = screensFor(round->with, order.screen);
    const auto before = std::make_shared<DesktopWallpaper::Memory>();
    const auto done = [round, order, before, screens](const QString& error) {
        const WindowContext& with = round->with;
        const bool isLatest = order.number == round->last;
        settle(round, order.number);
        if (!error.isEmpty() && isLatest)
            with.undo.failPicture(error, [round, order] { start(round, order.wallpaper, order.screen); });
        else if (!error.isEmpty())
            with.undo.failPicture(error); // it would come over the one that followed
        else if (isLatest && before->isKnown() && isShown(with.wallpaper, order.wallpaper, screens))
            with.undo.offer({Wording::tr("Wallpaper set to %1").arg(wallpaperTitle(order.wallpaper)),
                [with, memory = *before] { giveBack(with, memory); }});
    };
    const auto remembered = [before](const DesktopWallpaper::Memory& memory) { *before = memory; };
    std::visit(WallpaperSetter{round->with.wallpaper, screens, done, remembered}, order.wallpaper);
}

void WallpaperActions::settle(const std::shared_ptr<Round>& round, int number)
{
    if (!round->shown)
        return;
    if (number == round->last)
        round->shown->m_work.end();
    Q_EMIT round->shown->settled();
}

void WallpaperActions::bringBack()
{
    ++m_round->last; // what is on its way is not wanted any more
    m_work.end();
    bringBackPrevious(m_with, [self = QPointer(this)](const QString&) {
        if (self)
            Q_EMIT self->settled();
    });
}

void WallpaperActions::add(const QStringList& files)
{
    QStringList paths;
    for (const QString& file : files)
        paths.append(QDir::cleanPath(QFileInfo(file).absoluteFilePath()));
    paths.removeDuplicates();
    if (!paths.isEmpty())
        m_with.sorter.sort(paths, [round = m_round](const PictureSorter::Sorted& sorted) { takeOn(*round, sorted); });
}

void WallpaperActions::takeOn(const Round& round, const PictureSorter::Sorted& sorted)
{
    UndoKeeper& undo = round.with.undo;
    Setting<QStringList>& own = round.with.settings.customWallpapers;
    const QStringList before = own();
    if (const QStringList fresh = without(sorted.pictures, before); !fresh.isEmpty()) {
        own.set(sorted.pictures + without(before, sorted.pictures));
        undo.offer({Wording::tr("%n pictures added", nullptr, static_cast<int>(fresh.size())),
            [&own, before] { own.set(before); }});
        if (round.shown)
            Q_EMIT round.shown->added(fresh.first());
    }
    if (!sorted.others.isEmpty())
        undo.fail(refusalOf(sorted.others));
}

void WallpaperActions::takeOff(const QString& path)
{
    Setting<QStringList>& own = m_with.settings.customWallpapers;
    const QStringList before = own();
    if (!before.contains(path))
        return;
    own.set(without(before, {path}));
    m_with.undo.offer({Wording::tr("Removed from My Wallpapers"), [&own, before] { own.set(before); }});
}

void WallpaperActions::showInFolder(const QString& path)
{
    tryToShowInFolder(m_with, path);
}

} // namespace ambrelle
