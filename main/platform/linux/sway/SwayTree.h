// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

namespace ambrelle {

/// A window that Sway shows on some output.
struct SwayWindow {
    QRectF place; ///< with its title bar; in points of Sway's layout, y down
    qint64 process = 0; ///< 0 when unknown
    bool isFullScreen = false;

    bool operator==(const SwayWindow&) const = default;
};

/// In any order. None when `tree` is not what Sway tells of its tree.
std::optional<QList<SwayWindow>> swayWindows(const QByteArray& tree);

struct SwayOutput {
    QString name; ///< of the connector
    QString maker; ///< as the display tells it; empty when unknown
    QString model; ///< likewise
    QString serial; ///< likewise
    QRectF place; ///< in points of Sway's layout, y down
    QRectF usable; ///< what bars and docks leave of it; all of it where that is unknown

    bool operator==(const SwayOutput&) const = default;
};

/// Those in use. None when the texts are not what Sway tells of its outputs and workspaces.
std::optional<QList<SwayOutput>> swayOutputs(const QByteArray& outputs, const QByteArray& workspaces);

} // namespace ambrelle
