// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalHand.h"

#include "drawing/Symbols.h"

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

MinimalHand::MinimalHand(MinimalLook look, const FaceRenderer& skin)
    : m_look(std::move(look))
    , m_skin(skin)
{
}

std::unique_ptr<const MinimalHand> MinimalHand::of(const MinimalLook& look, const FaceRenderer& skin)
{
    switch (look.panel) {
    case PanelTreatment::frost: return makeFrostHand(look, skin);
    case PanelTreatment::hairline: return makeHairlineHand(look, skin);
    case PanelTreatment::card: return makeCardHand(look, skin);
    case PanelTreatment::casing: return makeCasingHand(look, skin);
    }
    Q_UNREACHABLE();
}

void MinimalHand::warning(Canvas& canvas, const Box& box) const
{
    canvas.symbol(box, u"exclamationmark.triangle.fill"_s, 11, m_look.warn);
}

void MinimalHand::rates(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const FigureStyle figure = style().figure(26);
    markedFigure(canvas, box.column(0, 2, 12), u"arrow.down"_s, style().accentText(), reading.down, figure);
    markedFigure(canvas, box.column(1, 2, 12), u"arrow.up"_s, look().accent2, reading.up, figure);
}

void MinimalHand::named(Canvas& canvas, Box line, const QString& name, const TextStyle& nameStyle, const QString& value,
    const TextStyle& valueStyle) const
{
    constexpr double gap = 6;
    const double width = canvas.text(line, value, valueStyle.aligned(Align::right));
    line.cutRight(width + gap);
    canvas.text(line, name, nameStyle);
}

void MinimalHand::ordinal(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double width = 20;
    canvas.text(line.cutLeft(width), u"%1"_s.arg(index + 1, 2, 10, QLatin1Char('0')), style().caption());
}

void MinimalHand::currentWeather(Canvas& canvas, Box box, const WeatherReading& reading) const
{
    constexpr double picture = 40;
    constexpr double gap = 8;
    canvas.text(box.cutBottom(Bands::footer), reading.range(), style().caption());
    canvas.text(box.cutBottom(18), reading.description, style().row());
    drawPictogram(canvas, box.cutRight(picture), reading.sky, pictograms());
    box.cutRight(gap);
    // The degree sign at the height it has beside its figure, not on the base line of a unit.
    canvas.figure(box, reading.temperature + u'°', {}, style().figure(look().temperatureCap));
}

QPainterPath MinimalHand::symbolIn(const Box& box, const QString& name, double size)
{
    const Box square = box.centred(size, size);
    QTransform place = QTransform::fromTranslate(square.x(), square.y());
    place.scale(size, size);
    return place.map(symbolPath(name));
}

MinimalHand::Player MinimalHand::playerPlaces(Box content, double controlsHeight)
{
    Player places;
    places.cover = content.cutLeft(content.height());
    content.cutLeft(16);
    content.cutTop(2);
    places.texts = content.cutTop(44);
    places.controls = content.cutBottom(controlsHeight);
    content.cutBottom(Bands::gap);
    places.times = content.cutBottom(Bands::footer);
    places.progress = content.cutBottom(9);
    return places;
}

void MinimalHand::trackLines(
    Canvas& canvas, const Player& places, const NowPlayingReading& reading, const TextStyle& title) const
{
    trackTexts(canvas, places.texts, reading, title, style().caption().sized(12));
    level(canvas, places.progress, reading.progress, look().accent);
    canvas.text(places.times.column(0, 2), reading.elapsed, style().caption());
    canvas.text(places.times.column(1, 2), reading.total, style().caption().aligned(Align::right));
}

void MinimalHand::controls(
    Canvas& canvas, const Box& box, bool playing, const std::function<void(const Box&, const QString&, bool)>& draw)
{
    struct Control {
        QString symbol;
        FaceAction::Verb verb;
    };
    const std::array keys{
        Control{u"backward.fill"_s, FaceAction::Verb::previousTrack},
        Control{playing ? u"pause.fill"_s : u"play.fill"_s, FaceAction::Verb::playPause},
        Control{u"forward.fill"_s, FaceAction::Verb::nextTrack},
    };
    for (int index = 0; index < 3; ++index) {
        const Control& key = keys[static_cast<std::size_t>(index)];
        const Box place = box.column(index, 3);
        draw(place, key.symbol, index == 1);
        canvas.hit(place, {key.verb});
    }
}

} // namespace ambrelle
