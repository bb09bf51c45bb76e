// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace ambrelle {

/// Strings as GLib's tools read and print them: in single or double quotes, with backslashes.
namespace GVariantText {

QString quoted(const QString& string);
std::optional<QString> unquoted(const QString& text); ///< nothing when the text is no string

} // namespace GVariantText

} // namespace ambrelle
