// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "foundation/UserDefaults.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingWindowHost.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/DesktopWallpaper.h"
#include "wallpapers/PngWriter.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>

using namespace ambrelle;

namespace {

constexpr QSize pixels(2880, 1800);

void paintRecipe(benchmark::State& state, Skin skin)
{
    const Wallpaper wallpaper(wallpaperRecipe, {});
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(wallpaper.picture(skin, pixels, static_cast<int>(state.range(0))));
}

void encodePng(benchmark::State& state, Skin skin)
{
    const QImage picture = Wallpaper(wallpaperRecipe, {}).picture(skin, pixels);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(encodedAsPng(picture));
}

/// One thing over a whole picture, on one thread.
void paintLayer(benchmark::State& state, void (*paint)(Painting&))
{
    for ([[maybe_unused]] auto _ : state) {
        Painting painting(pixels);
        paint(painting);
        benchmark::DoNotOptimize(painting.render(1));
    }
}

void noise(Painting& painting, double scale)
{
    const Perlin perlin(1);
    painting.raster(
        painting.all(), scale, [perlin](double x, double y) { return white(perlin.fbm(2 * x, 2 * y, 5, 2)); });
}

/// The longest time between two beats of the main loop while a skin's wallpaper is painted, written and set.
void applyWallpaper(benchmark::State& state, Skin skin)
{
    double longest = 0;
    for ([[maybe_unused]] auto _ : state) {
        const QTemporaryDir folder;
        RecordingWindowHost host;
        ScreenInfo screen = host.screens().first();
        screen.frame = QRectF(QPointF(), pixels);
        host.setScreens({screen});
        RecordingDesktopPicture picture;
        UserDefaults defaults = UserDefaults::temporary();
        DesktopWallpaper wallpaper({wallpaperRecipe, {}}, host, picture, defaults, {folder.path(), {}});
        QEventLoop loop;
        QTimer beat;
        QElapsedTimer since;
        QObject::connect(&beat, &QTimer::timeout, [&] {
            longest = std::max(longest, static_cast<double>(since.nsecsElapsed()) / 1e6);
            since.start();
        });
        beat.setTimerType(Qt::PreciseTimer);
        beat.start(1);
        since.start();
        wallpaper.apply(skin, [&loop](const QString&) { loop.quit(); });
        loop.exec();
    }
    state.counters["longest gap ms"] = longest;
}

constexpr std::pair<const char*, void (*)(Painting&)> layers[]{
    {"nothing", [](Painting&) {}},
    {"vertical gradient", [](Painting& painting) { painting.verticalGradient(white(), black()); }},
    {"vignette", [](Painting& painting) { painting.vignette(0.5); }},
    {"grain",
        [](Painting& painting) {
            SeededRandom random{1};
            painting.grain(0.02, random);
        }},
    {"ellipse",
        [](Painting& painting) {
            QPainterPath path;
            path.addEllipse(painting.all());
            painting.fill(path, white());
        }},
    {"five octaves, scale 1", [](Painting& painting) { noise(painting, 1); }},
    {"five octaves, scale 2", [](Painting& painting) { noise(painting, 2); }},
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    for (const auto& [name, paint] : layers)
        benchmark::RegisterBenchmark(name, paintLayer, paint)->Unit(benchmark::kMillisecond);
    for (const Skin skin : allCases<Skin>()) {
        const std::string name = rawValue(skin).data();
        benchmark::RegisterBenchmark((name + "/paint").c_str(), paintRecipe, skin)
            ->Arg(1)
            ->Arg(2)
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((name + "/apply").c_str(), applyWallpaper, skin)
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((name + "/png").c_str(), encodePng, skin)->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
