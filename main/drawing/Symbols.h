// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QString>

namespace ambrelle {

/// The outline of a named symbol in a square of side 1, y down; empty for an unknown name. Outlines are kept, by
/// each thread for itself: a shared path computes its bounds when they are first asked for.
QPainterPath symbolPath(const QString& name);
bool hasSymbol(const QString& name);

} // namespace ambrelle
