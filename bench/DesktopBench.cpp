// SPDX-License-Identifier: MIT

// How long the miniatures of all skins take, drawn and from the cache, how long the main loop is away meanwhile, and
// what the memory grows to.
#include "foundation/UserDefaults.h"
#include "model/ThemeAccent.h"
#include "offline/DesktopSnapshots.h"
#include "platform/headless/HeadlessMachine.h"
#include "skins/WallpaperRecipes.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

constexpr int build = 1;

DesktopSnapshots::Collaborators collaborators(ThemeAccent& accents, const QString& folder)
{
    const Wallpaper wallpaper(wallpaperRecipe, {});
    return {wallpaper, ImageDiskCache(folder, build), accents,
        [wallpaper] {
            return wallpaper.picture(Skin::polar, {1152, 720});
        },
        [](std::unique_ptr<Clock> clock) { return std::make_unique<HeadlessMachine>(std::move(clock)); }};
}

/// Megabytes of memory the program has now.
double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6 : 0;
}

/// Has all miniatures made; gives the longest time in milliseconds between two rounds of the loop.
double longestGap(DesktopSnapshots& snapshots)
{
    QElapsedTimer since;
    qint64 longest = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] {
        longest = std::max(longest, since.nsecsElapsed());
        since.start();
    });
    int missing = 0;
    QEventLoop loop;
    QObject::connect(&snapshots, &DesktopSnapshots::changed, &loop, [&] {
        if (--missing == 0)
            loop.quit();
    });
    for (const Skin skin : allCases<Skin>())
        missing += snapshots.image(skin).isNull() ? 1 : 0;
    since.start();
    beat.start(0);
    loop.exec();
    return static_cast<double>(longest) / 1e6;
}

void makeAll(benchmark::State& state, bool cached)
{
    UserDefaults defaults = UserDefaults::temporary();
    ThemeAccent accents(defaults);
    double gap = 0;
    QTemporaryDir kept;
    if (cached) {
        DesktopSnapshots first(collaborators(accents, kept.path()));
        longestGap(first);
    }
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const QTemporaryDir fresh;
        DesktopSnapshots snapshots(collaborators(accents, cached ? kept.path() : fresh.path()));
        state.ResumeTiming();
        gap = std::max(gap, longestGap(snapshots));
    }
    const auto count = static_cast<double>(allCases<Skin>().size());
    state.counters["ms-each"] = benchmark::Counter(count * static_cast<double>(state.iterations()) / 1e3,
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["gap-ms"] = gap;
    state.counters["resident-MB"] = residentMegabytes();
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    for (const bool cached : {false, true})
        benchmark::RegisterBenchmark(cached ? "miniatures/cached" : "miniatures/drawn", makeAll, cached)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
