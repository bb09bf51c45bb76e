// SPDX-License-Identifier: MIT

#include "app/LivePictures.h"

#include "app/EndingSignals.h"
#include "app/SampleMachine.h"
#include "app/SampleProgram.h"
#include "offline/BatchOutput.h"
#include "offline/SampleData.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 paintPatience = 30'000; // milliseconds until all panels of a skin have been painted
constexpr qint64 afterwards = 100; // for what is painted only then

/// Runs the main loop until `isDone`, at most that long.
void runUntil(const std::function<bool()>& isDone, qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!isDone() && timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
}

/// The city and the day that sample widgets have.
void takeSampleOptions(WidgetConfig& config)
{
    const WidgetConfig sample = SampleData::widget(config.kind);
    config.city = sample.city;
    config.timeZone = sample.timeZone;
    config.countdownTitle = sample.countdownTitle;
    config.countdownDate = sample.countdownDate;
    config.countdownStart = sample.countdownStart;
}

void show(const WindowContext& context, Skin skin, const std::optional<QList<WidgetKind>>& kinds, const QImage& photo)
{
    context.manager.removeAll();
    if (kinds) {
        for (const WidgetKind kind : *kinds) {
            if (WidgetController* widget = context.manager.add(kind, skin))
                widget->change(takeSampleOptions);
        }
    } else {
        context.manager.applyPreset(skin, false);
    }
    for (WidgetController* widget : context.manager.controllers()) {
        widget->setPinned(true); // to the front
        if (widget->config().kind == WidgetKind::photo)
            context.services.photos.loadPreview(widget->config().id, photo);
    }
}

void capture(BatchOutput& output, const WindowContext& context, Skin skin)
{
    const QList<WidgetController*>& widgets = context.manager.controllers();
    const auto isPainted = [&] { return std::ranges::all_of(widgets, &WidgetController::isPainted); };
    runUntil([&] { return output.isStopped() || isPainted(); }, paintPatience);
    runUntil([&] { return output.isStopped(); }, afterwards);
    for (WidgetController* widget : widgets) {
        const QString name = u"%1-%2.png"_s.arg(rawValue(skin), rawValue(widget->config().kind));
        if (widget->isPainted())
            output.add(name, [picture = widget->picture()] { return BatchOutput::png(picture); });
        else
            output.fail(name);
    }
}

} // namespace

int renderLive(const QString& folder, const QList<Skin>& skins, const std::optional<QList<WidgetKind>>& kinds,
    std::unique_ptr<Machine> machine, const QImage& photo, const EndingSignals& ending)
{
    BatchOutput output(folder, skins.size());
    if (!output.open())
        return output.finish();
    QObject::connect(&ending, &EndingSignals::received, [&output] { output.refuse(u"Interrupted."_s); });
    const SampleProgram program(std::make_unique<SampleMachine>(std::move(machine)), photo);
    for (const Skin skin : skins) {
        if (output.isStopped())
            break;
        output.begin(title(skin));
        show(program.context(), skin, kinds, photo);
        capture(output, program.context(), skin);
    }
    return output.finish();
}

} // namespace ambrelle
