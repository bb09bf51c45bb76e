#include "app/BatchModes.h"

#include "app/Information.h"
#include "app/WallpaperBatch.h"
#include "foundation/ManualClock.h"
#include "offline/PreviewRenderer.h"
#include "platform/headless/HeadlessSources.h"
#include "services/SystemMonitor.h"
#include "skins/WallpaperRecipes.h"

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
    const HeadlessSources machine;
    ManualClock clock;
    SystemMonitor monitor(machine.sources(), clock);
    return PreviewRenderer::run(commandLine.folder, only, monitor, wallpaper);
}

} // namespace ambrelle
