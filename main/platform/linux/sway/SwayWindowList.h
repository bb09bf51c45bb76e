// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/sway/SwaySocket.h"
#include "platform/linux/sway/SwayTree.h"
#include "platform/WindowList.h"

#include <QTimer>

#include <chrono>
#include <functional>

namespace ambrelle {

struct SwayPace {
    std::chrono::milliseconds settling{150}; ///< from what Sway tells to a look at it
    std::chrono::milliseconds look{800}; ///< from one look at windows at rest to the next
};

/// The windows that Sway shows. Sway tells when windows come, go and change places by command, but not that one is
/// dragged or resized; so while somebody watches and there is a window that could be, the tree is read again and again.
class SwayWindowList final : public WindowList {
public:
    /// Turns a rectangle of Sway's layout (y down) into global points.
    using ToGlobal = std::function<QRectF(const QRectF& place)>;

    /// `path` is where Sway listens, empty where there is none; windows of the process `own` are left out.
    SwayWindowList(const QString& path, ToGlobal toGlobal, qint64 own, SwayPace pace = {});

    bool isAvailable() const override { return m_isThere; }
    QString whyNot() const override;
    /// None while nobody watches, and before Sway has answered for the first time: then changed() tells.
    std::optional<QList<OnscreenWindow>> windows() const override;
    void setWatching(bool watching) override;

    /// Nobody is at the machine to drag a window, so there is no need to look.
    void setResting(bool resting);

private:
    void look();
    void take(const QByteArray& tree);
    void lost();
    void lookLater(bool moved);

    SwaySocket m_socket;
    ToGlobal m_toGlobal;
    qint64 m_own;
    SwayPace m_pace;
    QTimer m_soon; ///< after something happened
    QTimer m_again; ///< although nothing happened
    QByteArray m_tree; ///< as it came last
    std::optional<QList<SwayWindow>> m_windows; ///< of others
    bool m_isThere;
    bool m_watching = false;
    bool m_resting = false;
    bool m_isLooking = false;
    bool m_lookAgain = false; ///< something happened since the question was asked
};

} // namespace ambrelle
