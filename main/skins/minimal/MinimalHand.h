// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceKit.h"
#include "faces/Pictogram.h"
#include "skins/minimal/MinimalLook.h"

#include <functional>
#include <memory>

namespace ambrelle {

/// The manner in which a plate treatment draws: the pieces that the minimal faces are laid out from. One hand per
/// treatment; looks of one treatment share it and differ by their data alone.
class MinimalHand {
public:
    /// The hand of the look's treatment. It refers to the skin, whose style it draws in.
    static std::unique_ptr<const MinimalHand> of(const MinimalLook& look, const FaceRenderer& skin);

    MinimalHand(MinimalLook look, const FaceRenderer& skin);
    virtual ~MinimalHand() = default;
    Q_DISABLE_COPY_MOVE(MinimalHand)

    virtual void plate(Canvas& canvas, const FaceContext& face) const = 0;
    virtual void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const = 0;
    virtual void warning(Canvas& canvas, const Box& box) const;

    /// The share of a load over time, 0 to 1, on its base line.
    virtual void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const = 0;
    /// Two rates over time about one line.
    virtual void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const = 0;
    /// Returns the box inside.
    virtual Box dial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const = 0;
    virtual void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const = 0;
    virtual void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const = 0;
    virtual PictogramPaint pictograms() const = 0;
    /// The mark behind today's number.
    virtual double todayCorner() const = 0;

    /// What fills the content box of a kind.
    virtual void clock(Canvas& canvas, Box content, const ClockReading& reading, const FaceContext& face) const = 0;
    virtual void battery(Canvas& canvas, Box content, const BatteryReading& reading) const = 0;
    virtual void rates(Canvas& canvas, const Box& box, const NetworkReading& reading) const;
    virtual void processes(Canvas& canvas, const Box& content, const ProcessesReading& reading) const = 0;
    virtual void weather(Canvas& canvas, Box content, const WeatherReading& reading, const FaceContext& face) const = 0;
    virtual void events(Canvas& canvas, const Box& content, const EventsReading& reading) const = 0;
    virtual void player(
        Canvas& canvas, Box content, const NowPlayingReading& reading, const FaceContext& face) const = 0;

protected:
    const MinimalLook& look() const { return m_look; }
    const FaceRenderer& skin() const { return m_skin; }
    const SkinStyle& style() const { return m_skin.style(); }

    /// A value at the right end of the line and a name that takes what is left.
    void named(Canvas& canvas, Box line, const QString& name, const TextStyle& nameStyle, const QString& value,
        const TextStyle& valueStyle) const;
    /// The row's number, in figures of two digits; cuts its place off the line.
    void ordinal(Canvas& canvas, Box& line, qsizetype index) const;
    /// Temperature and picture over the description and the day's range.
    void currentWeather(Canvas& canvas, Box box, const WeatherReading& reading) const;
    /// The outline of a named symbol in a centred square.
    static QPainterPath symbolIn(const Box& box, const QString& name, double size);

    struct Player {
        Box cover;
        Box texts;
        Box times;
        Box progress;
        Box controls;
    };
    /// The places of a wide player: a square cover at the left, the rest beside it.
    static Player playerPlaces(Box content, double controlsHeight);
    /// Title, artist, progress and times.
    void trackLines(
        Canvas& canvas, const Player& places, const NowPlayingReading& reading, const TextStyle& title) const;
    /// Calls `draw` for each control, with its symbol, and lets it answer clicks.
    static void controls(Canvas& canvas, const Box& box, bool playing,
        const std::function<void(const Box& place, const QString& symbol, bool middle)>& draw);

private:
    MinimalLook m_look;
    const FaceRenderer& m_skin;
};

std::unique_ptr<const MinimalHand> makeFrostHand(const MinimalLook& look, const FaceRenderer& skin);
std::unique_ptr<const MinimalHand> makeHairlineHand(const MinimalLook& look, const FaceRenderer& skin);
std::unique_ptr<const MinimalHand> makeCardHand(const MinimalLook& look, const FaceRenderer& skin);
std::unique_ptr<const MinimalHand> makeCasingHand(const MinimalLook& look, const FaceRenderer& skin);

} // namespace ambrelle
