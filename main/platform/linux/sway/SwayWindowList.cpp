// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayWindowList.h"

#include "foundation/Wording.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// Whether the windows may lie elsewhere after it. Titles change often; that a key did something may have moved a
/// window.
bool movesWindows(const QString& kind, const QString& change)
{
    return kind != "window"_L1 || (change != "title"_L1 && change != "urgent"_L1 && change != "mark"_L1);
}

} // namespace

SwayWindowList::SwayWindowList(const QString& path, ToGlobal toGlobal, qint64 own, SwayPace pace)
    : m_socket(path, {u"window"_s, u"workspace"_s, u"output"_s, u"binding"_s})
    , m_toGlobal(std::move(toGlobal))
    , m_own(own)
    , m_pace(pace)
    , m_isThere(!path.isEmpty())
{
    m_soon.setSingleShot(true);
    m_again.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &SwayWindowList::look);
    connect(&m_again, &QTimer::timeout, this, &SwayWindowList::look);
    connect(&m_socket, &SwaySocket::opened, this, [this] {
        m_isLooking = false;
        look();
    });
    connect(&m_socket, &SwaySocket::happened, this, [this](const QString& kind, const QString& change) {
        if (movesWindows(kind, change) && !m_soon.isActive())
            m_soon.start(m_pace.settling);
    });
    connect(&m_socket, &SwaySocket::ended, this, &SwayWindowList::lost);
}

QString SwayWindowList::whyNot() const
{
    return m_isThere ? QString()
                     : Wording::tr("This desktop does not tell where windows are: no widget counts as covered");
}

std::optional<QList<OnscreenWindow>> SwayWindowList::windows() const
{
    if (!m_windows)
        return std::nullopt;
    QList<OnscreenWindow> windows;
    for (const SwayWindow& window : *m_windows)
        windows.append({.bounds = m_toGlobal(window.place), .isFullScreen = window.isFullScreen});
    return windows;
}

void SwayWindowList::setWatching(bool watching)
{
    m_watching = watching && m_isThere;
    if (m_watching)
        return m_socket.open();
    m_socket.close();
    m_soon.stop();
    m_again.stop();
    m_tree.clear();
    m_windows.reset();
}

void SwayWindowList::setResting(bool resting)
{
    if (!std::exchange(m_resting, resting) || resting)
        return;
    if (m_watching && !m_isLooking)
        look();
}

void SwayWindowList::look()
{
    m_soon.stop();
    m_again.stop();
    m_lookAgain = m_isLooking;
    if (m_isLooking || !m_socket.isOpen())
        return;
    m_isLooking = true;
    m_socket.ask(SwaySocket::Question::tree, [this](const QByteArray& tree) { take(tree); });
}

void SwayWindowList::take(const QByteArray& tree)
{
    m_isLooking = false;
    // Nearly always nothing has changed, and then there is no need to understand it.
    const bool isSame = tree == m_tree;
    std::optional<QList<SwayWindow>> windows = isSame ? m_windows : swayWindows(tree);
    if (windows)
        windows->removeIf([this](const SwayWindow& window) { return window.process == m_own; });
    const bool moved = windows != m_windows;
    m_tree = tree;
    m_windows = windows;
    if (std::exchange(m_lookAgain, false))
        m_soon.start(m_pace.settling);
    else
        lookLater(moved);
    if (moved)
        Q_EMIT changed();
}

/// Once more soon after a step of what may be a drag; seldom while all windows rest.
void SwayWindowList::lookLater(bool moved)
{
    const bool canBeDragged = m_windows && !std::ranges::all_of(*m_windows, &SwayWindow::isFullScreen);
    if (canBeDragged && !m_resting)
        m_again.start(moved ? m_pace.settling : m_pace.look);
}

void SwayWindowList::lost()
{
    setWatching(false);
    m_isThere = false;
    Q_EMIT changed();
}

} // namespace ambrelle
