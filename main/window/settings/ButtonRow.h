// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QWidget;

namespace ambrelle {

class Button;

/// Buttons side by side, as the control of a row of settings; a click on its name presses the first one.
QWidget* makeButtonRow(const QList<Button*>& buttons);

} // namespace ambrelle
