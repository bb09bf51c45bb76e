// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// How often something happens, as a drop-down offers it; 0 minutes and less: never.
QString periodTitle(int minutes);

} // namespace ambrelle
