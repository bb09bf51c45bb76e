// SPDX-License-Identifier: MIT

#include "platform/toolkit/ScreenList.h"

#include "foundation/ForeignText.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <chrono>

namespace ambrelle {

namespace {

// While screens are rearranged the toolkit passes through states in which they overlap or are empty.
constexpr std::chrono::milliseconds settling{300};

/// The main screen first, without the placeholder that stands in while nothing is connected.
QList<QScreen*> realScreens()
{
    QList<QScreen*> screens = QGuiApplication::screens();
    screens.removeIf([](const QScreen* screen) { return screen->name().isEmpty() || screen->geometry().isEmpty(); });
    std::ranges::stable_partition(
        screens, [](const QScreen* screen) { return screen == QGuiApplication::primaryScreen(); });
    return screens;
}

QString makerNameOf(const QScreen& screen)
{
    QStringList parts{screen.manufacturer(), screen.model(), screen.serialNumber()};
    parts.removeAll(QString());
    return parts.join(u' ');
}

QString idOf(const QScreen& screen, const QList<QScreen*>& all)
{
    const QString name = makerNameOf(screen);
    if (name.isEmpty())
        return screen.name();
    const auto alike = std::ranges::count_if(all, [&](const QScreen* other) { return makerNameOf(*other) == name; });
    return alike == 1 ? name : name + u'@' + screen.name();
}

} // namespace

ScreenList::ScreenList()
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(settling);
    connect(&m_quiet, &QTimer::timeout, this, &ScreenList::compare);
    const auto restart = [this] { m_quiet.start(); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ScreenList::follow);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, restart);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, restart);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, restart);
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    m_told = screens();
}

void ScreenList::follow(QScreen* screen)
{
    const auto restart = [this] { m_quiet.start(); };
    connect(screen, &QScreen::geometryChanged, this, restart);
    connect(screen, &QScreen::availableGeometryChanged, this, restart);
    connect(screen, &QScreen::physicalSizeChanged, this, restart);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, restart);
}

void ScreenList::compare()
{
    const QList<ScreenInfo> now = screens();
    if (now == m_told)
        return;
    m_told = now;
    Q_EMIT changed();
}

QList<ScreenInfo> ScreenList::screens() const
{
    const GlobalSpace here = space();
    const QList<QScreen*> all = realScreens();
    QList<ScreenInfo> list;
    for (const QScreen* screen : all) {
        ScreenInfo info;
        info.id = idOf(*screen, all);
        info.connector = screen->name();
        info.maker = foreignText(screen->manufacturer());
        info.model = foreignText(screen->model());
        info.frame = here.turned(QRectF(screen->geometry()));
        info.visibleFrame = here.turned(QRectF(screen->availableGeometry()));
        info.pixelRatio = screen->devicePixelRatio();
        info.widthInMillimetres = screen->physicalSize().width();
        list.append(info);
    }
    return list;
}

GlobalSpace ScreenList::space() const
{
    const QList<QScreen*> all = realScreens();
    if (!all.isEmpty())
        m_space.origin = QRectF(all.first()->geometry()).bottomLeft();
    return m_space;
}

} // namespace ambrelle
