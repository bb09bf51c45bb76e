// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"
#include "platform/WindowHost.h"

#include <optional>

namespace ambrelle {

/// Where a widget stands when screens come, go and change. A widget belongs to a display (`display`, `displayOffset`);
/// while that display is away it is a guest on the main screen, and it goes home when the display returns. Without any
/// screen nothing moves.
///
/// `homeSize` is the size its display had when `displayOffset` was recorded, none when nobody knows. On a display of
/// another size, and as a guest, the widget stands where it stood relative to the nearer edges; its record stays, so
/// that it stands at its old place exactly when the display gets its old size back.
namespace ScreenPlacement {

using HomeSize = std::optional<QSizeF>;

/// The screen that shows most of `frame`; none when it lies off every screen.
std::optional<ScreenInfo> screenShowing(const QRectF& frame, const QList<ScreenInfo>& screens);
/// That screen, else the nearest; none without screens.
std::optional<ScreenInfo> screenNear(const QRectF& frame, const QList<ScreenInfo>& screens);

/// Where the widget's origin belongs now: its place on its display; whole on the main screen while that display is
/// away; whole on the nearest screen when it would be visible nowhere.
QPointF origin(const WidgetConfig& config, const HomeSize& homeSize, const QList<ScreenInfo>& screens);

/// Records the display a widget was put on. A widget that stands where its display places it keeps that display, even
/// as a guest elsewhere.
void rememberDisplay(WidgetConfig& config, HomeSize& homeSize, const QList<ScreenInfo>& screens);
/// Puts the widget where it belongs; true when that moved it.
bool syncDisplay(WidgetConfig& config, const HomeSize& homeSize, const QList<ScreenInfo>& screens);
/// Settles a widget where the user has put it, and makes the display there its home. Out of sight it is brought back to
/// the nearest screen.
void settle(WidgetConfig& config, HomeSize& homeSize, const QList<ScreenInfo>& screens);

/// Where a widget stands after it became `after.size()` large: a guest stays in its corner, and a widget that was whole
/// on a screen does not grow out of it; else its lower left corner stays.
QPointF originAfterResize(
    const WidgetConfig& before, const WidgetConfig& after, const HomeSize& homeSize, const QList<ScreenInfo>& screens);

/// `frame` moved as little as possible to lie whole in `area`; its upper left corner wins when it is larger.
QRectF movedInto(const QRectF& frame, const QRectF& area);

} // namespace ScreenPlacement

} // namespace ambrelle
