// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowList.h"

namespace ambrelle {

/// When windows of other programs are in a widget's way. All rectangles are global points.
namespace OverlapRule {

/// Those that people work in: no menus, docks or tooltips, neither small nor nearly transparent.
QList<OnscreenWindow> counting(const QList<OnscreenWindow>& windows);

/// Whether a raised widget lies over some of `windows`, all of which count; touching its rim is no matter.
bool isOver(const QRectF& widget, const QList<OnscreenWindow>& windows);
/// Whether a widget below `windows`, all of which count, is out of sight: under a full-screen one, or wholly covered by
/// several together.
bool isUnder(const QRectF& widget, const QList<OnscreenWindow>& windows);

/// What a widget's window fades to, 0 to 1.
double opacity(bool faded, bool hide);

} // namespace OverlapRule

} // namespace ambrelle
