// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <QList>
#include <QObject>
#include <QPointF>
#include <QString>

#include <optional>

namespace ambrelle {

class Clock;
class InputMonitor;
class UserDefaults;

/// How long the user was active in each hour of today, how far the pointer went and how often they clicked. Measures
/// only while started; what it measured survives restarts until the day is over, and a crash but for the last minute.
class ActivityTracker : public QObject {
    Q_OBJECT
public:
    ActivityTracker(InputMonitor& monitor, UserDefaults& defaults, Clock& clock);
    ~ActivityTracker() override; ///< stops

    void start(); ///< does nothing when started
    void stop(); ///< and keeps the figures
    /// Fixed figures for pictures; stops.
    void loadPreviewData();

    bool isAvailable() const;
    QString whyNot() const; ///< one sentence, empty while available
    bool tellsPointer() const; ///< false where the session tells no clicks and no travel: both stay 0

    const QList<double>& hours() const { return m_figures.hours; } ///< 24: active seconds in each hour of today
    double activeSeconds() const; ///< today
    double metres() const { return m_figures.metres; } ///< pointer travel today, on the glass of the main display
    int clicks() const { return m_figures.clicks; } ///< today

Q_SIGNALS:
    void changed(); ///< a figure has another value, or measuring became possible or impossible

private:
    struct Figures {
        QList<double> hours = QList<double>(24, 0.0);
        double metres = 0;
        int clicks = 0;

        bool operator==(const Figures&) const = default;
    };

    void load();
    void save();
    void sample();
    void finishSample(std::optional<double> idleSeconds);
    void beginDay(const QString& day);
    void countActivity(std::optional<double> idleSeconds);
    void convertTravel();
    void click();
    void move(const QPointF& point);

    InputMonitor& m_monitor;
    UserDefaults& m_defaults;
    Clock& m_clock;
    Figures m_figures;
    QString m_day; ///< that the figures belong to
    std::optional<QPointF> m_lastPoint;
    double m_pendingPoints = 0; ///< travel that is not in the metres yet
    double m_metresPerPoint = 0;
    bool m_wasAvailable = true; ///< at the last sample
    bool m_showsSamples = false;
    Ticket m_timer; ///< held while started
};

} // namespace ambrelle
