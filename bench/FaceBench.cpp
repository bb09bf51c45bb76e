// SPDX-License-Identifier: MIT

#include "drawing/LayerCache.h"
#include "skins/SkinRegistry.h"
#include "support/FaceStates.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace ambrelle;

namespace {

/// What the face reads some samples later, so that no picture of it has been kept.
Reading later(Reading reading, int samples)
{
    const auto shifted = [samples](History history) {
        if (!history.isEmpty())
            std::ranges::rotate(history, history.begin() + samples % history.size());
        return history;
    };
    const double share = 0.05 + 0.9 * std::abs(std::sin(samples * 0.7));
    if (auto* cpu = std::get_if<CpuReading>(&reading)) {
        cpu->history = shifted(cpu->history);
        cpu->percent = static_cast<int>(share * 100);
    } else if (auto* memory = std::get_if<MemoryReading>(&reading)) {
        for (Share& part : memory->parts)
            part.fraction *= 1 + share * 0.01;
    } else if (auto* network = std::get_if<NetworkReading>(&reading)) {
        network->downHistory = shifted(network->downHistory);
        network->upHistory = shifted(network->upHistory);
    }
    return reading;
}

/// A changed reading drawn over what the widget showed before, as a panel does it.
void drawFace(benchmark::State& state, Skin skin, WidgetKind kind)
{
    const FaceView face = view(skin, kind);
    const Reading reading = stateReading(kind, FaceState::sample, QLocale::c());
    QImage window((face.size() + QSizeF(60, 62)).toSize(), QImage::Format_ARGB32_Premultiplied);
    LayerCache layers;
    QPainter painter(&window);
    painter.translate(30, 32);
    int samples = 0;
    for ([[maybe_unused]] auto _ : state) {
        const Reading next = later(reading, ++samples);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(face.face().bounds, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        face.draw(painter, next, {.layers = &layers});
    }
}

/// One frame of what moves on a face.
void drawMotion(benchmark::State& state, Skin skin, WidgetKind kind)
{
    const FaceView face = view(skin, kind);
    const Reading reading = stateReading(kind, FaceState::sample, QLocale::c());
    QImage window((face.size() + QSizeF(60, 62)).toSize(), QImage::Format_ARGB32_Premultiplied);
    LayerCache layers;
    QPainter painter(&window);
    painter.translate(30, 32);
    double time = 0;
    for ([[maybe_unused]] auto _ : state)
        face.drawMoving(painter, reading, {.time = time += 0.1, .layers = &layers});
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    for (const Skin skin : allCases<Skin>()) {
        for (const WidgetKind kind : allCases<WidgetKind>()) {
            const std::string name = (rawValue(skin) + u'/' + rawValue(kind)).toStdString();
            benchmark::RegisterBenchmark(("face/" + name).c_str(), drawFace, skin, kind)->Unit(benchmark::kMicrosecond);
            benchmark::RegisterBenchmark(("motion/" + name).c_str(), drawMotion, skin, kind)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
