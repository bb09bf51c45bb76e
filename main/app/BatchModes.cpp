// SPDX-License-Identifier: MIT

#include "app/BatchModes.h"

#include "app/BatchSurroundings.h"
#include "app/Hosts.h"
#include "app/Information.h"
#include "app/WallpaperBatch.h"
#include "offline/PreviewRenderer.h"
#include "offline/SampleWorld.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/WallpaperStore.h"

#include <QGuiApplication>
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

int renderPreviews(const QString& folder, const QList<Skin>& skins, const Wallpaper& wallpaper)
{
    const SampleWorld samples(
        makeHeadlessMachine, wallpaper.picture(WallpaperStore::samplePhoto, WallpaperStore::pixels));
    return PreviewRenderer::run(folder, skins, samples, wallpaper);
}

} // namespace

int runBatchMode(const CommandLine& commandLine, int& argc, char** argv)
{
    const std::optional<QList<Skin>> skins = wantedSkins();
    if (!skins)
        return EXIT_FAILURE;
    BatchSurroundings::prepare("offscreen");
    const QGuiApplication application(argc, argv);
    BatchSurroundings::dress();
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    switch (commandLine.mode) {
    case Mode::renderPreviews: return renderPreviews(commandLine.folder, *skins, wallpaper);
    case Mode::renderWallpapers: return renderWallpapers(wallpaper, commandLine.folder, *skins);
    default: return EXIT_FAILURE;
    }
}

} // namespace ambrelle
