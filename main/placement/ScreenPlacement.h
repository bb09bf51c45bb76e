// SPDX-License-Identifier: MIT

#pragma once

#include "placement/StoredWidget.h"
#include "platform/WindowHost.h"

#include <optional>

namespace ambrelle {

/// Where widgets stand when screens come, go and change. A widget belongs to a display (`display`, `displayOffset`);
/// while that display is away it is a guest on the main screen, and it goes home when the display returns. Without any
/// screen nothing moves. A widget that belongs nowhere yet is at home where it first stands; from then on only the user
/// gives it another home.
///
/// On a display of another size, and as a guest, a widget stands where it stood relative to the nearer edges. Where
/// widgets of one display would come to lie over one another by that, all of them are fitted together, like a layout.
/// Guests give way to whoever is there already, as far as there is room. Their homes stay, so that each stands at its
/// old place, in its old size, when the display gets its old size back.
namespace ScreenPlacement {

/// The screen that shows most of `frame`; none when it lies off every screen.
std::optional<ScreenInfo> screenShowing(const QRectF& frame, const QList<ScreenInfo>& screens);
/// That screen, else the nearest; none without screens.
std::optional<ScreenInfo> screenNear(const QRectF& frame, const QList<ScreenInfo>& screens);

/// What a widget may stand on: a screen's work area, or all of it when the desktop reports none.
QRectF room(const ScreenInfo& screen);

/// Puts every widget where it belongs now. Those that stand on a screen of another size stay where they are until that
/// screen changes again, whatever becomes of their neighbours.
void arrange(QList<StoredWidget>& widgets, const QList<ScreenInfo>& screens);

/// Gives a widget that belongs nowhere the display that shows it.
void rememberDisplay(StoredWidget& widget, const QList<ScreenInfo>& screens);
/// Settles a widget where the user has put it, and makes the display there its home. Out of sight it is brought back to
/// the nearest screen. Shrunk with its group it stays as it is there, and grows with the display.
void settle(StoredWidget& widget, const QList<ScreenInfo>& screens);
/// After the widget got another size: one that was whole on a screen does not grow out of it, here or at its home; else
/// its lower left corner stays, as long as something of it is seen then.
void resized(StoredWidget& widget, const WidgetConfig& before, const QList<ScreenInfo>& screens);

/// `frame` moved as little as possible to lie whole in `area`; its upper left corner wins when it is larger.
QRectF movedInto(const QRectF& frame, const QRectF& area);

} // namespace ScreenPlacement

} // namespace ambrelle
