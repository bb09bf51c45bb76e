// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <QRectF>

#include <optional>

namespace ambrelle {

/// How high a popover may be that belongs to `widget`, points; nothing where no screen is connected.
std::optional<double> popoverRoom(const QRectF& widget, const QList<ScreenInfo>& screens);

/// Where a popover of that size stands that belongs to `widget`: right or left of it where there is room, else below or
/// above, and whole on the widget's screen in any case. Global points, y up.
QRectF popoverFrame(const QRectF& widget, const QSizeF& size, const QList<ScreenInfo>& screens);

} // namespace ambrelle
