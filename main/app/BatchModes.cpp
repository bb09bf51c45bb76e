// SPDX-License-Identifier: MIT

#include "app/BatchModes.h"

#include "app/Information.h"
#include "app/ServicePorts.h"
#include "app/WallpaperBatch.h"
#include "faces/ReadingFeed.h"
#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "offline/PreviewRenderer.h"
#include "offline/SampleData.h"
#include "platform/headless/HeadlessMachine.h"
#include "services/SystemMonitor.h"
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
    HeadlessMachine machine(std::make_unique<ManualClock>(SampleData::moment()));
    const Machine::Ports ports = machine.ports();
    UserDefaults defaults = UserDefaults::temporary(); // the pictures are not the user's
    AppSettings settings(defaults);
    SystemMonitor monitor(ports.sources, ports.clock);
    LiveServices services(servicePorts(ports), {}, settings, defaults, ports.clock);
    const ReadingFeed feed({monitor, services, settings}, ports.clock);
    // Not from the cache of the desktop: what is in there was packed with losses.
    SampleData::load(monitor, services, wallpaper.picture(WallpaperStore::samplePhoto, WallpaperStore::pixels));
    return PreviewRenderer::run(folder, only, feed, wallpaper);
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
