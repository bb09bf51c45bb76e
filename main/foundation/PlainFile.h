// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ambrelle {

/// The bytes of a plain file of at most that many; nothing of a larger one, of what cannot be read, and of devices,
/// pipes and folders, which are not waited for.
std::optional<QByteArray> readPlainFile(const QString& path, qint64 mostBytes);

} // namespace ambrelle
