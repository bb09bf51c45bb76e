// SPDX-License-Identifier: MIT

#include "app/InterfacePictures.h"

#include "app/Hosts.h"
#include "app/SampleProgram.h"
#include "foundation/ManualClock.h"
#include "offline/BatchOutput.h"
#include "offline/PreviewRenderer.h"
#include "offline/SampleData.h"
#include "window/frame/MainWindow.h"
#include "window/look/AppLook.h"
#include "window/WindowMaker.h"

#include <QApplication>
#include <QElapsedTimer>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int pieces = 1 + static_cast<int>(allCases<MainTab>().size()) + 1; // besides desktops
constexpr std::array savedDesktops{Skin::grove, Skin::slate, Skin::kyoto};

/// Saves some desktops, and leaves that of `last`.
void arrange(const WindowContext& context, Skin last)
{
    for (const Skin skin : savedDesktops) {
        context.manager.applyPreset(skin, false);
        SavedTheme theme = context.manager.snapshot(title(skin));
        theme.wallpaper = skin;
        context.themes.add(theme);
    }
    context.manager.applyPreset(last, false);
}

/// Waits until the window has all its pictures and changes no more, and gives what it shows then; null where that takes
/// too long. What other threads draw for it besides takes some milliseconds each.
QImage settled(MainWindow& window, const PictureShelf& shelf)
{
    constexpr qint64 rest = 800; // milliseconds
    constexpr qint64 patience = 60'000;
    QElapsedTimer sinceBegin;
    QElapsedTimer sinceChange;
    sinceBegin.start();
    sinceChange.start();
    QImage shown;
    while (sinceBegin.elapsed() < patience) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
        const QImage now = window.grab().toImage();
        if (now != shown || !shelf.isComplete())
            sinceChange.restart();
        shown = now;
        if (sinceChange.elapsed() >= rest)
            return shown.convertToFormat(QImage::Format_RGB888);
    }
    return {};
}

void addWindow(BatchOutput& output, const WindowContext& context)
{
    AppLook::shared().apply({.reducesMotion = true});
    const std::unique_ptr<MainWindow> window = makeMainWindow(context);
    window->resize(MainWindow::firstSize);
    window->show();
    const auto add = [&](const QString& name) {
        output.add(u"ui-%1.png"_s.arg(name),
            [picture = settled(*window, context.shelf)] { return BatchOutput::png(picture); });
    };
    for (const MainTab tab : allCases<MainTab>()) {
        if (output.isStopped())
            return;
        output.begin(title(tab));
        context.model.setTab(tab);
        add(rawValue(tab));
    }
    output.begin(u"My Themes"_s);
    context.model.setTab(MainTab::themes);
    context.model.setThemesSection(ThemesSection::mine);
    add(u"mythemes"_s);
}

} // namespace

int renderInterface(const QString& folder, const QList<Skin>& skins, const Wallpaper& wallpaper, const QImage& photo)
{
    BatchOutput output(folder, skins.size() + pieces);
    if (!output.open())
        return output.finish();
    const SampleWorld samples(makeHeadlessMachine, photo);
    for (const Skin skin : skins) {
        output.begin(title(skin));
        PreviewRenderer::addDesktop(output, skin, samples, wallpaper);
        if (output.isStopped())
            return output.finish();
    }
    output.begin(u"Miniatures"_s);
    const SampleProgram program(makeHeadlessMachine(std::make_unique<ManualClock>(SampleData::moment())), photo);
    arrange(program.context(), skins.first());
    program.context().snapshots.renderPresetsNow();
    addWindow(output, program.context());
    return output.finish();
}

} // namespace ambrelle
