// SPDX-License-Identifier: MIT

#include "services/ActivityTracker.h"

#include "foundation/Clock.h"
#include "foundation/UserDefaults.h"
#include "platform/InputMonitor.h"
#include "services/DayKey.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds sampleInterval{10};
constexpr double idleAfter = 60; // seconds
const QString key = u"activity.today"_s;

/// The stored amount; 0 when it is none.
double amount(const QJsonValue& value)
{
    return std::max(0.0, value.toDouble()); // JSON knows no infinity
}

int count(const QJsonValue& value)
{
    return std::max(0, value.toInt());
}

QList<double> hoursFrom(const QJsonArray& array)
{
    QList<double> hours(24, 0.0);
    if (array.size() == hours.size())
        std::ranges::transform(array, hours.begin(), [](const QJsonValue& value) { return amount(value); });
    return hours;
}

} // namespace

ActivityTracker::ActivityTracker(InputMonitor& monitor, UserDefaults& defaults, Clock& clock)
    : m_monitor(monitor)
    , m_defaults(defaults)
    , m_clock(clock)
{
    connect(&monitor, &InputMonitor::clicked, this, &ActivityTracker::click);
    connect(&monitor, &InputMonitor::moved, this, &ActivityTracker::move);
    load();
}

ActivityTracker::~ActivityTracker()
{
    const QSignalBlocker nobodyListens(this);
    stop();
}

void ActivityTracker::start()
{
    if (m_timer)
        return;
    const Figures before = m_figures;
    load(); // the day may be another, and the figures may be samples
    m_monitor.start();
    m_wasAvailable = m_monitor.isAvailable();
    m_metresPerPoint = m_monitor.metresPerPoint();
    m_timer = m_clock.every(sampleInterval, [this] { sample(); });
    if (m_figures != before)
        Q_EMIT changed();
}

void ActivityTracker::stop()
{
    if (!m_timer)
        return;
    m_timer.reset();
    m_monitor.stop();
    m_lastPoint.reset();
    const double before = m_figures.metres;
    convertTravel();
    save();
    if (m_figures.metres != before)
        Q_EMIT changed();
}

void ActivityTracker::loadPreviewData()
{
    stop();
    constexpr std::array<double, 24> minutes{
        0, 0, 0, 0, 0, 0, 4, 22, 48, 41, 25, 44, 12, 33, 52, 36, 24, 9, 0, 18, 30, 12, 0, 0};
    std::ranges::transform(minutes, m_figures.hours.begin(), [](double value) { return value * 60; });
    m_figures.metres = 148.3;
    m_figures.clicks = 1204;
    m_showsSamples = true;
    Q_EMIT changed();
}

bool ActivityTracker::isAvailable() const
{
    return m_showsSamples || m_monitor.isAvailable();
}

QString ActivityTracker::whyNot() const
{
    return m_showsSamples ? QString() : m_monitor.whyNot();
}

bool ActivityTracker::tellsPointer() const
{
    return m_showsSamples || m_monitor.tellsPointer();
}

double ActivityTracker::activeSeconds() const
{
    return std::accumulate(m_figures.hours.begin(), m_figures.hours.end(), 0.0);
}

void ActivityTracker::load()
{
    m_showsSamples = false;
    m_day = dayKey(m_clock.now().date());
    const QJsonObject stored = m_defaults.object(key).value_or(QJsonObject());
    if (stored["day"_L1].toString() != m_day)
        m_figures = {};
    else
        m_figures = {hoursFrom(stored["hours"_L1].toArray()), amount(stored["metres"_L1]), count(stored["clicks"_L1])};
}

void ActivityTracker::save()
{
    QJsonArray hours;
    for (const double seconds : m_figures.hours)
        hours.append(seconds);
    m_defaults.set(key,
        QJsonObject{
            {"day"_L1, m_day}, {"hours"_L1, hours}, {"metres"_L1, m_figures.metres}, {"clicks"_L1, m_figures.clicks}});
}

void ActivityTracker::sample()
{
    m_monitor.secondsSinceInput(this, [this](std::optional<double> seconds) {
        if (m_timer) // not stopped meanwhile
            finishSample(seconds);
    });
}

void ActivityTracker::finishSample(std::optional<double> idleSeconds)
{
    const Figures before = m_figures;
    const QString today = dayKey(m_clock.now().date());
    const bool isAnotherDay = today != m_day;
    if (isAnotherDay)
        beginDay(today);
    countActivity(idleSeconds);
    convertTravel();
    save();
    const bool wasAvailable = std::exchange(m_wasAvailable, m_monitor.isAvailable());
    if (m_figures != before || m_wasAvailable != wasAvailable)
        Q_EMIT changed();
}

void ActivityTracker::beginDay(const QString& day)
{
    m_figures = {};
    m_day = day;
}

void ActivityTracker::countActivity(std::optional<double> idleSeconds)
{
    if (idleSeconds && *idleSeconds < idleAfter)
        m_figures.hours[m_clock.now().time().hour()] += static_cast<double>(sampleInterval.count());
}

void ActivityTracker::convertTravel()
{
    m_figures.metres += m_pendingPoints * m_metresPerPoint;
    m_pendingPoints = 0;
}

void ActivityTracker::click()
{
    if (!m_timer || m_figures.clicks == std::numeric_limits<int>::max())
        return;
    ++m_figures.clicks;
    Q_EMIT changed();
}

void ActivityTracker::move(const QPointF& point)
{
    if (!m_timer)
        return;
    if (m_lastPoint)
        m_pendingPoints += std::hypot(point.x() - m_lastPoint->x(), point.y() - m_lastPoint->y());
    m_lastPoint = point;
}

} // namespace ambrelle
