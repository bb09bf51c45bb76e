// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QWidget;

namespace ambrelle {

/// What of a control moves when its state changes.
enum class MovingPart { hover, knob };

/// Where that motion stands for `widget`, on its way to `target`, both 0 to 1. At the first time, without a widget, for
/// a hidden one and where motion is not wished it is there at once; else the widget is painted again until it is.
/// `number`: which one, of a widget that has several such parts.
double transition(const QWidget* widget, MovingPart part, double target, int number = 0);

/// Lets a widget appear, or vanish and then be hidden, within usual milliseconds; `done` follows.
void fadeIn(QWidget& widget, int milliseconds);
void fadeOut(QWidget& widget, int milliseconds, std::function<void()> done = {});

} // namespace ambrelle
