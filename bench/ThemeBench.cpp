// SPDX-License-Identifier: MIT

// How long the main loop is held up while saved desktops of many widgets take the place of each other: in memory, and
// where there is a display, on that. Measured as the longest time between two runs of a timer of a millisecond.

#include "platform/linux/kernel/SystemClock.h"
#include "platform/recording/RecordingWindowHost.h"
#include "platform/x11/X11WindowHost.h"
#include "support/DeskOf.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>

#include <ctime>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds longEnough{6}; // for the last widget to be there

/// Of this thread, in milliseconds: with others at work the time on the wall says little.
double processorTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// The longest stretch so far, on the wall and on the processor.
struct LongestStretch {
    QElapsedTimer wall;
    double began = 0;
    double wallMs = 0;
    double processorMs = 0;

    void begin()
    {
        wall.start();
        began = processorTime();
    }
    void end()
    {
        wallMs = std::max(wallMs, static_cast<double>(wall.nsecsElapsed()) / 1e6);
        processorMs = std::max(processorMs, processorTime() - began);
    }
    void tell(benchmark::State& state, const std::string& what) const
    {
        state.counters[what + "_ms"] = wallMs;
        state.counters[what + "_processor_ms"] = processorMs;
    }
};

SavedTheme themeOf(int count, Skin skin)
{
    SavedTheme theme;
    for (int i = 0; i < count; ++i)
        theme.widgets.append({WidgetConfig(allCases<WidgetKind>()[static_cast<std::size_t>(i % 20)], skin),
            (i % 40) / 50.0, static_cast<double>(i) / (1.5 * count)});
    return theme;
}

void applyInTurn(benchmark::State& state, WindowHost& host)
{
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"settings.json"_s));
    DeskOf<SystemClock, WindowHost&> desk(defaults, host);
    const auto count = static_cast<int>(state.range(0));
    LongestStretch call;
    LongestStretch gap;
    bool odd = false;
    for ([[maybe_unused]] auto _ : state) {
        const SavedTheme theme = themeOf(count, (odd = !odd) ? Skin::glass : Skin::neon);
        QTimer beat;
        QEventLoop loop;
        QObject::connect(&beat, &QTimer::timeout, &beat, [&] {
            gap.end();
            gap.begin();
        });
        QTimer::singleShot(longEnough, &loop, &QEventLoop::quit);
        beat.start(1);
        call.begin();
        desk.manager.apply(theme, false);
        call.end();
        gap.begin();
        loop.exec();
    }
    call.tell(state, "call");
    gap.tell(state, "loop");
}

void inMemory(benchmark::State& state)
{
    RecordingWindowHost host;
    applyInTurn(state, host);
}

void onDisplay(benchmark::State& state)
{
    X11WindowHost host;
    if (!host.isAvailable())
        return state.SkipWithError("there is no display");
    applyInTurn(state, host);
}

constexpr int few = 13;
constexpr int many = 1000;
BENCHMARK(inMemory)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(onDisplay)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
