// SPDX-License-Identifier: MIT

#include "app/BatchModes.h"

#include "app/BatchSurroundings.h"
#include "app/Hosts.h"
#include "app/Information.h"
#include "app/InterfacePictures.h"
#include "app/WallpaperBatch.h"
#include "offline/PreviewRenderer.h"
#include "offline/SampleWorld.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/WallpaperStore.h"

#include <QApplication>
#include <QTextStream>

#include <cstdlib>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using Mode = CommandLine::Mode;

template <typename E> QString namesOf()
{
    QStringList names;
    for (const E each : allCases<E>())
        names.append(rawValue(each));
    return names.join(u", "_s);
}

/// The skins that SKIN leaves; nothing after a sentence where it names none.
std::optional<QList<Skin>> wantedSkins()
{
    const QString name = qEnvironmentVariable("SKIN");
    if (const std::optional<Skin> only = parse<Skin>(name))
        return QList{*only};
    if (!name.isEmpty()) {
        QTextStream(stderr) << u"ambrelle: SKIN names no theme: “%1”. The themes are %2.\n"_s.arg(
            name, namesOf<Skin>());
        return std::nullopt;
    }
    const auto every = allCases<Skin>();
    return QList<Skin>(every.begin(), every.end());
}

/// Not from any cache: what is in there was packed with losses.
QImage samplePhoto(const Wallpaper& wallpaper)
{
    return wallpaper.picture(WallpaperStore::samplePhoto, WallpaperStore::pixels);
}

int renderPreviews(const QString& folder, const QList<Skin>& skins, const Wallpaper& wallpaper)
{
    const SampleWorld samples(makeHeadlessMachine, samplePhoto(wallpaper));
    return PreviewRenderer::run(folder, skins, samples, wallpaper);
}

int runOffscreen(const CommandLine& commandLine, const QList<Skin>& skins, int& argc, char** argv)
{
    BatchSurroundings::prepare("offscreen");
    const QGuiApplication application(argc, argv);
    BatchSurroundings::dress();
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    if (commandLine.mode == Mode::renderWallpapers)
        return renderWallpapers(wallpaper, commandLine.folder, skins);
    return renderPreviews(commandLine.folder, skins, wallpaper);
}

int runInterface(const CommandLine& commandLine, const QList<Skin>& skins, int& argc, char** argv)
{
    constexpr int scale = 2;
    BatchSurroundings::prepare("offscreen", scale);
    const QApplication application(argc, argv);
    BatchSurroundings::dress();
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    return renderInterface(commandLine.folder, skins, wallpaper, samplePhoto(wallpaper));
}

} // namespace

int runBatchMode(const CommandLine& commandLine, int& argc, char** argv)
{
    const std::optional<QList<Skin>> skins = wantedSkins();
    if (!skins)
        return EXIT_FAILURE;
    if (commandLine.mode == Mode::renderInterface)
        return runInterface(commandLine, *skins, argc, argv);
    return runOffscreen(commandLine, *skins, argc, argv);
}

} // namespace ambrelle
