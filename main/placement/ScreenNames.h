// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <QStringList>

namespace ambrelle {

/// What people call each of the screens, in their order: its model, "Built-in Display" where it is part of the machine,
/// else its connector. Where several would have one name, each has its connector added.
QStringList screenNames(const QList<ScreenInfo>& screens);

} // namespace ambrelle
