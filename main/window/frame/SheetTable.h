// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/Sheet.h"

class QLayout;

namespace ambrelle {

/// The lines of a sheet, side by side in two columns.
QLayout* makeSheetTable(const QList<SheetLine>& lines);

} // namespace ambrelle
