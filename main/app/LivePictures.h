// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QImage>

#include <memory>
#include <optional>

namespace ambrelle {

class EndingSignals;
class Machine;

/// Puts widgets of these kinds (none: of the skin's own layout) with sample data on the screen of `machine`, above the
/// other windows, in one skin after the other, and writes what each panel shows as "<skin>-<kind>.png" into `folder`,
/// which is made when missing; `photo` stands for photos and artwork. `ending` ends it early, in order. Needs the
/// application object. Gives the exit status: 0, or 1 after a sentence on standard error.
int renderLive(const QString& folder, const QList<Skin>& skins, const std::optional<QList<WidgetKind>>& kinds,
    std::unique_ptr<Machine> machine, const QImage& photo, const EndingSignals& ending);

} // namespace ambrelle
