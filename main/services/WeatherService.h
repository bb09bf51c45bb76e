// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "services/WeatherAnswers.h"

#include <QObject>
#include <QUrl>

namespace ambrelle {

using namespace Qt::StringLiterals;

class AppSettings;
class HttpClient;
class LocationSource;
struct Location;

/// The weather now and for a week ahead, in the city the user chose or where the machine is. What fails is tried again
/// after 1, 2 and then every 5 minutes, and old figures are renewed when the machine wakes up or a network comes. Main
/// thread only.
class WeatherService : public QObject {
    Q_OBJECT
public:
    /// Where the endpoints live; their paths are added to these addresses.
    struct Bases {
        QUrl forecast{u"https://api.open-meteo.com"_s};
        QUrl geocoding{u"https://geocoding-api.open-meteo.com"_s};
    };

    WeatherService(
        HttpClient& network, LocationSource& location, const AppSettings& settings, Clock& clock, Bases bases);

    /// Begins to fetch, at once and every twenty minutes. Later calls do nothing.
    void start();
    /// Fetches again, for the last place or from finding the place on. Nothing before start(). The service itself calls
    /// it when the user changes the unit or the city.
    void refresh(bool reusingPlace);
    /// A fixed sample in place of real weather, for pictures.
    void loadPreviewData();

    /// None until the first fetch that succeeded; kept when later ones fail.
    const std::optional<WeatherSnapshot>& snapshot() const { return m_snapshot; }
    /// When the snapshot was told; nothing while there is none.
    const std::optional<QDateTime>& asOf() const { return m_asOf; }
    /// One sentence to show while there is no snapshot.
    const QString& status() const { return m_status; }
    bool isStarted() const { return m_started; }
    /// Whether the snapshot is of the place and in the unit that the user wants at present.
    bool isAnswered() const { return m_isAnswered; }
    /// Whether the snapshot is of the place that the user wants, in whichever unit.
    bool isOfPlace() const { return m_snapshot && m_shownCity == city(); }
    /// Why the last attempt gave nothing, in a sentence, also while there is a snapshot; empty: it did, or it is under
    /// way.
    const QString& failure() const { return m_failure; }

Q_SIGNALS:
    void changed(); ///< snapshot() or status() is another one
    void progressed(); ///< isStarted(), isAnswered() or failure() is, which widgets do not show

private:
    struct Place {
        double latitude = 0;
        double longitude = 0;
        QString name;
    };
    /// What the user wants to know. Answers to a question that was given up since may still come.
    struct Question {
        QString city; ///< empty: where the machine is
        bool useFahrenheit = false;

        bool operator==(const Question&) const = default;
    };

    Question question() const;
    QString city() const { return question().city; }
    void settingChanged(const QString& key);
    void findPlace();
    void requestLocation();
    void authorizationChanged();
    void located(const Location& location);
    void locationFailed();
    void loadCity(const QString& city);
    void cityFound(const QString& city, const WeatherAnswers::Places& found);
    void fetch(const Place& place);
    void forecastRead(const Question& asked, const WeatherSnapshot& forecast);
    /// Gets a document, decodes it beside the main loop, and hands on what it says. Tells a failure, unless `asked` was
    /// given up.
    template <typename Decode, typename Use> void get(const QUrl& url, const Question& asked, Decode decode, Use use);
    void catchUp();
    void tryAgainLater();
    void setSnapshot(const WeatherSnapshot& snapshot);
    void setStatus(const QString& status);
    void setFailure(const QString& sentence);
    void setAnswered(bool answered);
    void reportUnavailable(const QString& why); ///< in the status only while there is no snapshot
    void fail(const QString& why); ///< and tries again later

    HttpClient& m_network;
    LocationSource& m_location;
    const AppSettings& m_settings;
    Clock& m_clock;
    Bases m_bases;
    std::optional<WeatherSnapshot> m_snapshot;
    QString m_status;
    QString m_failure;
    bool m_started = false;
    std::optional<Place> m_lastPlace; // of the last fetch; none when another city was chosen since
    std::optional<QDateTime> m_asOf;
    std::optional<QString> m_shownCity; // that the snapshot was asked for; empty: where the machine is
    bool m_isAnswered = false; // the present question, since it was put
    std::size_t m_failures = 0; // since the last success
    Ticket m_timer;
    Ticket m_jumps;
    Ticket m_retry;
};

} // namespace ambrelle
