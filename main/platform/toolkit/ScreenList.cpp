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

QRectF partOf(const QRect& whole, const QRectF& share)
{
    const QRectF part(whole.x() + share.x() * whole.width(), whole.y() + share.y() * whole.height(),
        share.width() * whole.width(), share.height() * whole.height());
    return part.toRect() & whole;
}

QString idOf(const QString& connector, const QString& name, qsizetype alike)
{
    if (name.isEmpty())
        return connector;
    return alike == 1 ? name : name + u'@' + connector;
}

} // namespace

ScreenList::ScreenList(FactsOf factsOf)
    : m_factsOf(factsOf ? std::move(factsOf) : [](const QString&) { return std::nullopt; })
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(settling);
    connect(&m_quiet, &QTimer::timeout, this, &ScreenList::compare);
    const auto restart = [this] { factsChanged(); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ScreenList::follow);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, restart);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, restart);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, restart);
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    m_told = screens();
}

void ScreenList::factsChanged()
{
    m_quiet.start();
}

void ScreenList::follow(QScreen* screen)
{
    const auto restart = [this] { factsChanged(); };
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
    QList<ScreenInfo> list;
    QStringList names;
    for (const QScreen* screen : realScreens()) {
        const std::optional<ScreenFacts> facts = m_factsOf(screen->name());
        const QString maker = facts ? facts->maker : screen->manufacturer();
        const QString model = facts ? facts->model : screen->model();
        QStringList parts{maker, model, facts ? facts->serial : screen->serialNumber()};
        parts.removeAll(QString());
        names.append(parts.join(u' '));
        ScreenInfo info;
        info.connector = screen->name();
        info.maker = foreignText(maker);
        info.model = foreignText(model);
        info.frame = here.turned(QRectF(screen->geometry()));
        info.visibleFrame =
            here.turned(facts ? partOf(screen->geometry(), facts->usable) : screen->availableGeometry());
        info.pixelRatio = screen->devicePixelRatio();
        info.widthInMillimetres = screen->physicalSize().width();
        list.append(info);
    }
    for (qsizetype i = 0; i < list.size(); ++i)
        list[i].id = idOf(list[i].connector, names[i], names.count(names[i]));
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
