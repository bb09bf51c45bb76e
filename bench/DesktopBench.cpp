// SPDX-License-Identifier: MIT

// How long the miniatures of all skins take, drawn and from the cache, how long the main loop is away meanwhile, and
// what the memory grows to.
#include "foundation/BackgroundThread.h"
#include "foundation/UserDefaults.h"
#include "model/ThemeAccent.h"
#include "offline/DesktopSnapshots.h"
#include "platform/headless/HeadlessMachine.h"
#include "platform/linux/kernel/ThreadPriority.h"
#include "skins/WallpaperRecipes.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <ctime>

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

double milliseconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// How long this thread waited for a processor that others had, milliseconds; 0 where the kernel does not tell.
double queuedMilliseconds()
{
    QFile file(u"/proc/thread-self/schedstat"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() / 1e6 : 0;
}

/// How long the loop was away at most, milliseconds.
struct LoopPause {
    double all = 0;
    double own = 0; ///< of the processor
    double held = 0; ///< neither working nor waiting for a processor, so held up by another thread or the disk

    void widen(const LoopPause& other)
    {
        all = std::max(all, other.all);
        own = std::max(own, other.own);
        held = std::max(held, other.held);
    }
};

/// Has all miniatures made; gives the longest time between two rounds of the loop.
LoopPause makeMissing(DesktopSnapshots& snapshots)
{
    LoopPause longest;
    std::array<double, 3> last{};
    QTimer beat;
    const auto note = [&] {
        const std::array<double, 3> now{
            milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID), queuedMilliseconds()};
        const LoopPause gap{
            now[0] - last[0], now[1] - last[1], now[0] - last[0] - (now[1] - last[1]) - (now[2] - last[2])};
        if (last[0] > 0)
            longest.widen(gap);
        last = now;
    };
    QObject::connect(&beat, &QTimer::timeout, note);
    int missing = 0;
    QEventLoop loop;
    QObject::connect(&snapshots, &DesktopSnapshots::changed, &loop, [&] {
        if (--missing == 0)
            loop.quit();
    });
    for (const Skin skin : allCases<Skin>())
        missing += snapshots.image(skin).isNull() ? 1 : 0;
    note();
    beat.start(1);
    loop.exec();
    return longest;
}

void makeAll(benchmark::State& state, bool cached)
{
    UserDefaults defaults = UserDefaults::temporary();
    ThemeAccent accents(defaults);
    LoopPause gap;
    const double before = residentMegabytes();
    QTemporaryDir kept;
    if (cached) {
        DesktopSnapshots first(collaborators(accents, kept.path()));
        makeMissing(first);
    }
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const QTemporaryDir fresh;
        DesktopSnapshots snapshots(collaborators(accents, cached ? kept.path() : fresh.path()));
        state.ResumeTiming();
        gap.widen(makeMissing(snapshots));
    }
    const auto count = static_cast<double>(allCases<Skin>().size());
    state.counters["ms-each"] = benchmark::Counter(count * static_cast<double>(state.iterations()) / 1e3,
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["gap-ms"] = gap.all;
    state.counters["own-ms"] = gap.own;
    state.counters["held-ms"] = gap.held;
    state.counters["before-MB"] = before;
    state.counters["after-MB"] = residentMegabytes();
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    setYieldToOthers(lowerThreadPriority);
    for (const bool cached : {false, true})
        benchmark::RegisterBenchmark(cached ? "miniatures/cached" : "miniatures/drawn", makeAll, cached)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
