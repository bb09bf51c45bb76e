// SPDX-License-Identifier: MIT

#include "app/BatchModes.h"

#include "app/Hosts.h"
#include "app/Information.h"
#include "app/WallpaperBatch.h"
#include "offline/PreviewRenderer.h"
#include "offline/SampleWorld.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/WallpaperStore.h"

#include <QTextStream>

#include <cstdlib>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString skinNames()
{
    QStringList names;
    for (const Skin skin : allCases<Skin>())
        names.append(rawValue(skin));
    return names.join(u", "_s);
}

int renderPreviews(const Wallpaper& wallpaper, const QString& folder, std::optional<Skin> only)
{
    // Not from the cache of the desktop: what is in there was packed with losses.
    const SampleWorld samples(
        makeHeadlessMachine, wallpaper.picture(WallpaperStore::samplePhoto, WallpaperStore::pixels));
    return PreviewRenderer::run(folder, only, samples.feed(), wallpaper);
}

} // namespace

int runBatchMode(const CommandLine& commandLine)
{
    const QString name = qEnvironmentVariable("SKIN");
    const std::optional<Skin> only = parse<Skin>(name);
    if (!name.isEmpty() && !only) {
        QTextStream(stderr) << u"ambrelle: SKIN names no theme: “%1”. The themes are %2.\n"_s.arg(name, skinNames());
        return EXIT_FAILURE;
    }
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    if (commandLine.mode == CommandLine::Mode::renderWallpapers)
        return renderWallpapers(wallpaper, commandLine.folder, only);
    return renderPreviews(wallpaper, commandLine.folder, only);
}

} // namespace ambrelle
