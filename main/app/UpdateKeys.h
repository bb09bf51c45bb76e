// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace ambrelle {

/// The public keys that releases of this program are signed by, one of them each; empty: it believes nobody. Made from
/// AMBRELLE_UPDATE_KEYS when the program is built, and part of the program alone.
QStringList updateKeys();

} // namespace ambrelle
