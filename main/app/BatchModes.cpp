#include "app/BatchModes.h"

#include "foundation/ManualClock.h"
#include "offline/PreviewRenderer.h"
#include "platform/headless/HeadlessSources.h"
#include "services/SystemMonitor.h"

#include <QTextStream>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int wrongUse = 2;

} // namespace

int runBatchMode(const CommandLine& commandLine)
{
    const QString name = qEnvironmentVariable("SKIN");
    const std::optional<Skin> only = parse<Skin>(name);
    if (!name.isEmpty() && !only) {
        QTextStream(stderr) << u"ambrelle: SKIN names no theme: “%1”.\n"_s.arg(name);
        return wrongUse;
    }
    const HeadlessSources machine;
    ManualClock clock;
    SystemMonitor monitor(machine.sources(), clock);
    return PreviewRenderer::run(commandLine.folder, only, monitor);
}

} // namespace ambrelle
