// SPDX-License-Identifier: MIT

#include "app/BatchModes.h"

#include "app/BatchSurroundings.h"
#include "app/EndingSignals.h"
#include "app/Hosts.h"
#include "app/Information.h"
#include "app/InterfacePictures.h"
#include "app/LivePictures.h"
#include "app/WallpaperBatch.h"
#include "offline/PreviewRenderer.h"
#include "offline/SampleWorld.h"
#include "offline/SiteExporter.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/WallpaperStore.h"

#include <QApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using BatchMode = CommandLine::Mode;

template <typename E> QString namesOf()
{
    QStringList names;
    for (const E each : allCases<E>())
        names.append(rawValue(each));
    return names.join(u", "_s);
}

int refuse(const QString& sentence)
{
    QTextStream(stderr) << u"ambrelle: "_s << sentence << '\n';
    return EXIT_FAILURE;
}

/// The values that a variable names, each once; nothing after a sentence where it names none.
template <typename E> std::optional<QList<E>> namedBy(const char* variable, const QString& sentence)
{
    QList<E> named;
    for (const QString& word : qEnvironmentVariable(variable).split(u',')) {
        const QString name = word.trimmed();
        const std::optional<E> value = parse<E>(name);
        if (!value) {
            refuse(sentence.arg(name, namesOf<E>()));
            return std::nullopt;
        }
        if (!named.contains(*value))
            named.append(*value);
    }
    return named;
}

/// The skins that SKIN leaves, in the order of the catalogue; nothing after a sentence where it names none.
std::optional<QList<Skin>> wantedSkins()
{
    const auto every = allCases<Skin>();
    QList<Skin> skins(every.begin(), every.end());
    if (qEnvironmentVariableIsEmpty("SKIN"))
        return skins;
    const auto named = namedBy<Skin>("SKIN", u"SKIN names no theme: “%1”. The themes are %2."_s);
    if (!named)
        return std::nullopt;
    skins.removeIf([&](Skin skin) { return !named->contains(skin); });
    return skins;
}

/// Not from any cache: what is in there was packed with losses.
QImage wholeSamplePhoto(const Wallpaper& wallpaper)
{
    return wallpaper.picture(WallpaperStore::samplePhoto, WallpaperStore::pixels);
}

int renderPreviews(const QString& folder, const QList<Skin>& skins, const Wallpaper& wallpaper)
{
    const SampleWorld samples(makeHeadlessMachine, wholeSamplePhoto(wallpaper));
    return PreviewRenderer::run(folder, skins, samples, wallpaper);
}

/// Of now, or of the time that reproducible builds are told; nothing where that is no time.
std::optional<QDateTime> timeOfExport()
{
    if (qEnvironmentVariableIsEmpty("SOURCE_DATE_EPOCH"))
        return QDateTime::currentDateTimeUtc();
    bool isNumber = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isNumber);
    constexpr qint64 lastYear = 253'402'300'799; // of four digits
    if (!isNumber || seconds < 0 || seconds > lastYear)
        return std::nullopt;
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

int exportSite(const QString& folder, const QList<Skin>& skins, const Wallpaper& wallpaper)
{
    const std::optional<QDateTime> exported = timeOfExport();
    if (!exported) {
        return refuse(u"SOURCE_DATE_EPOCH must be a number of seconds since 1970, not “%1”."_s.arg(
            qEnvironmentVariable("SOURCE_DATE_EPOCH")));
    }
    const Information information = Information::read();
    const SampleWorld samples(makeHeadlessMachine, wholeSamplePhoto(wallpaper));
    const SiteGallery::Material material{
        .templates = dataFile(u"site"_s), .download = information.download, .licence = dataText(u"LICENSE"_s)};
    return SiteExporter::run(
        folder, skins, samples, wallpaper, {information.version, information.build, *exported}, material);
}

int runOffscreen(const CommandLine& commandLine, const QList<Skin>& skins, int& argc, char** argv)
{
    BatchSurroundings::prepare("offscreen");
    const QGuiApplication application(argc, argv);
    BatchSurroundings::dress();
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    if (commandLine.mode == BatchMode::renderWallpapers)
        return renderWallpapers(wallpaper, commandLine.folder, skins);
    if (commandLine.mode == BatchMode::exportSite)
        return exportSite(commandLine.folder, skins, wallpaper);
    return renderPreviews(commandLine.folder, skins, wallpaper);
}

int runLive(const CommandLine& commandLine, const QList<Skin>& skins, int& argc, char** argv)
{
    std::optional<QList<WidgetKind>> kinds;
    if (!qEnvironmentVariableIsEmpty("KINDS")) {
        kinds = namedBy<WidgetKind>("KINDS", u"KINDS names no widget: “%1”. The widgets are %2."_s);
        if (!kinds)
            return EXIT_FAILURE;
    }
    HeldEndingSignals held; // a display of the program's own has a file, which goes in the end
    const HostChoice choice = chooseDisplay(hostOffers());
    if (!choice.whyNot.isEmpty()) // who interrupts this program may have ended the display that it started
        return refuse(held.take() ? u"Interrupted."_s : choice.whyNot);
    BatchSurroundings::prepare(choice.plugin);
    for (const auto& [name, value] : choice.host.variables)
        qputenv(name, value);
    const QApplication application(argc, argv);
    const EndingSignals signals;
    held.release();
    BatchSurroundings::dress();
    std::unique_ptr<Machine> machine = choice.host.make({});
    if (!machine)
        return refuse(u"No widgets can be shown on this display."_s);
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    const QImage photo = wholeSamplePhoto(wallpaper);
    const int status = renderLive(commandLine.folder, skins, kinds, std::move(machine), photo, signals);
    held.hold();
    return status;
}

int runInterface(const CommandLine& commandLine, const QList<Skin>& skins, int& argc, char** argv)
{
    constexpr int scale = 2;
    BatchSurroundings::prepare("offscreen", scale);
    const QApplication application(argc, argv);
    BatchSurroundings::dress();
    const Wallpaper wallpaper(wallpaperRecipe, dataFile(u"Wallpapers"_s));
    return renderInterface(commandLine.folder, skins, wallpaper, wholeSamplePhoto(wallpaper));
}

} // namespace

int runBatchMode(const CommandLine& commandLine, int& argc, char** argv)
{
    const QByteArray folder = commandLine.folder.toLocal8Bit();
    if (std::none_of(argv, argv + argc, [&](const char* argument) { return folder == argument; }))
        return refuse(u"The name of the folder “%1” is not UTF-8."_s.arg(commandLine.folder));
    const std::optional<QList<Skin>> skins = wantedSkins();
    if (!skins)
        return EXIT_FAILURE;
    if (commandLine.mode == BatchMode::renderWindow)
        return runLive(commandLine, *skins, argc, argv);
    if (commandLine.mode == BatchMode::renderInterface)
        return runInterface(commandLine, *skins, argc, argv);
    return runOffscreen(commandLine, *skins, argc, argv);
}

} // namespace ambrelle
