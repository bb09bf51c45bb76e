// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>

class QWidget;

namespace ambrelle {

/// Tells assistive technology that a widget of our own is something of that role. Its name and description remain the
/// widget's; before anybody asked for them.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

} // namespace ambrelle
