// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>
#include <optional>

namespace ambrelle {

/// A plain file, open for reading; null where it cannot be read, and of devices, pipes and folders, which are not
/// waited for.
std::unique_ptr<QFile> openPlainFile(const QString& path);
/// The bytes of a plain file of at most that many; nothing of a larger one and of what cannot be opened so.
std::optional<QByteArray> readPlainFile(const QString& path, qint64 mostBytes);

} // namespace ambrelle
