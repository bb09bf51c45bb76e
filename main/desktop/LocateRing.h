// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <QColor>

class QPainter;

namespace ambrelle {

/// The ring round a widget that is pointed out.
namespace LocateRing {

RoundedArea around(const RoundedArea& plate); ///< what it covers and encloses
void paint(QPainter& painter, const RoundedArea& plate, const QColor& accent);

} // namespace LocateRing

} // namespace ambrelle
