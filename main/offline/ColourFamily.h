// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QStringList>

namespace ambrelle {

/// What people call a colour: "red", "orange", "yellow", "green", "teal", "blue", "violet", "pink" or "grey".
QString colourFamily(const QColor& colour);
/// All of these, in the order of the rainbow.
QStringList colourFamilies();

} // namespace ambrelle
