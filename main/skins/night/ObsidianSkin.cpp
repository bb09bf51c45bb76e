// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double edgeWidth = 1.4;
constexpr double hairLine = 0.8; // of what is not lit
constexpr double reflectionStrength = 0.10;

constexpr double turnPeriod = 14; // seconds between the starts of two turns of the edge
constexpr double turnLength = 1.6;
constexpr double turnRate = 24; // frames a second

/// A part of the edge, and the strip of the face that it keeps to.
struct EdgePiece {
    Box strip;
    QPainterPath path;
};

/// The ends of a plate with their corners, and its two straight sides.
std::array<EdgePiece, 4> edgePieces(const Box& face, double corner)
{
    const Box line = face.inset(edgeWidth / 2);
    const double radius = corner - edgeWidth / 2;
    const double round = 2 * radius;
    QPainterPath top({line.left(), line.top() + radius});
    top.arcTo({line.left(), line.top(), round, round}, 180, -90);
    top.arcTo({line.right() - round, line.top(), round, round}, 90, -90);
    QPainterPath bottom({line.right(), line.bottom() - radius});
    bottom.arcTo({line.right() - round, line.bottom() - round, round, round}, 0, -90);
    bottom.arcTo({line.left(), line.bottom() - round, round, round}, 270, -90);
    const auto side = [&](double x) { return straightLine({{x, line.top() + radius}, {x, line.bottom() - radius}}); };
    Box rest = face;
    const Box upper = rest.cutTop(corner);
    const Box lower = rest.cutBottom(corner);
    const Box left = rest.cutLeft(2);
    const Box right = rest.cutRight(2);
    return {{{upper, top}, {lower, bottom}, {left, side(line.left())}, {right, side(line.right())}}};
}

/// The light of a pane of glass that stands at the upper left.
QBrush reflection(const Box& box)
{
    return linear(box.topLeft(), box.center(),
        {{0, faded(Qt::white, reflectionStrength)}, {0.55, faded(Qt::white, reflectionStrength * 0.35)},
            {1, faded(Qt::white, 0)}});
}

/// A slab of black glass with one iridescent edge: figures as tall hairlines, and almost nothing else.
class ObsidianSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    FigureStyle figure(double cap) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const override;
    void eventMark(Canvas& canvas, Box& line, const QColor& colour) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override;
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override;
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;
    void overPhoto(Canvas& canvas, const FaceContext& face) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    void motion(Canvas& canvas, const FaceContext& face) const override;
    QGradientStops spectrum() const override
    {
        return {{0, look().accent3}, {0.5, look().accent}, {1, look().accent2}};
    }
    void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const override;

private:
    /// The colours of the edge, twice round and bright by turns; they begin at `turns` from twelve o'clock.
    QBrush edge(const Box& box, double turns) const;
    /// The spectrum from the upper left to the lower right of the box.
    QBrush aslant(const Box& box) const { return along(box.topLeft(), box.bottomRight(), look().accent); }
};

void ObsidianSkin::panel(Canvas& layer, const FaceContext& face) const
{
    layer.fill(face.bounds, reflection(face.bounds), look().corner);
}

QBrush ObsidianSkin::edge(const Box& box, double turns) const
{
    constexpr double dim = 0.35;
    const std::array colours{look().accent3, look().accent, look().accent2};
    constexpr int steps = 6;
    QGradientStops stops;
    for (int step = 0; step <= steps; ++step) {
        const QColor& colour = colours[static_cast<std::size_t>(step) % colours.size()];
        stops.append({static_cast<double>(step) / steps, faded(colour, step % 2 == 0 ? 1 : dim)});
    }
    return conical(box.center(), turns, stops);
}

void ObsidianSkin::motion(Canvas& canvas, const FaceContext& face) const
{
    const Motion turn = Motion::bursts(turnPeriod, 1 + static_cast<int>(face.kind), turnLength, turnRate);
    constexpr double rest = -0.125; // brightest at the upper left
    const std::array pieces = edgePieces(face.bounds, look().corner);
    for (std::size_t index = 0; index < pieces.size(); ++index) {
        const auto& [strip, path] = pieces[index];
        canvas.moving(strip, turn, [&](Canvas& moving, double time) {
            const std::optional<double> phase = time > 0 ? turn.phase(time) : std::nullopt;
            const auto draw = [&](Canvas& layer) {
                const double eased = phase ? (1 - std::cos(*phase * std::numbers::pi)) / 2 : 0;
                layer.stroke(path, flatPen(edge(face.bounds, rest + eased), edgeWidth));
            };
            if (phase)
                draw(moving);
            else
                moving.still(u"edge"_s, strip, draw, static_cast<int>(index));
        });
    }
}

FigureStyle ObsidianSkin::figure(double cap) const
{
    FigureStyle figure = style().figure(cap);
    figure.unitColour = look().soft;
    if (cap != look().temperatureCap || !figure.unitFace)
        return figure;
    constexpr int hair = 100;
    figure.unitFace->weight = hair; // a sign as thin as the figure
    return figure.kerned(); // which changes a few times a day
}

void ObsidianSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    NightSkin::level(canvas, box.centred(box.width(), 2 * look().lines.bead), fraction, colour);
}

void ObsidianSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double symbol = 14;
    Box line = box;
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(line.cutRight(symbol), reading.symbol, symbol, look().ink);
        line.cutRight(Bands::gap);
    }
    level(canvas, line, reading.level, valueColour(reading.low));
}

void ObsidianSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double line = 1.2;
    constexpr double air = 0.16; // around the pictures, in parts of their square
    canvas.still(
        u"sky"_s, box.inset(-1),
        [&](Canvas& layer) {
            const Box square = box.square();
            const QBrush light = aslant(square.inset(square.width() * air));
            drawPictogram(layer, box, sky,
                {.sun = light, .moon = light, .cloud = light, .water = light, .bolt = light, .outline = line});
        },
        static_cast<int>(sky));
}

void ObsidianSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const
{
    Box line = row.cutBottom(2);
    const bool first = index == 0;
    line = line.cutLeft(line.width() * fraction);
    canvas.rule(line, first ? along(line, look().accent) : QBrush(look().track), first ? 1 : hairLine);
}

void ObsidianSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    constexpr double width = 1.6;
    canvas.fill(line.cutLeft(width).inset(0, 4), colour, width / 2);
    line.cutLeft(10);
}

void ObsidianSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double radius = 6;
    const QPointF centre = box.center();
    const Box circle = squareAbout(centre, radius);
    canvas.stroke(arc(circle, 0, 1), QPen(done ? aslant(circle) : QBrush(look().soft), 1));
    if (done) {
        canvas.stroke(straightLine({centre + QPointF(-3, 0), centre + QPointF(-1, 2.5), centre + QPointF(3, -2.5)}),
            roundPen(look().ink, 1.2));
    }
}

void ObsidianSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    if (lit)
        bead(canvas, box.center(), look().accent);
    else
        canvas.stroke(arc(squareAbout(box.center(), look().lines.bead), 0, 1), QPen(look().soft, hairLine));
}

void ObsidianSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double width = 1.6;
    const double room = column.height() - look().lines.bead;
    Box bar = Box(column).cutBottom(std::max(1.0, room * fraction));
    bar = bar.centred(width, bar.height());
    canvas.fill(bar, linear(column.bottomLeft(), column.topLeft(), spectrum()), width / 2);
    if (now)
        bead(canvas, {bar.center().x(), bar.top()}, look().accent);
}

void ObsidianSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double shade = 0.1;
    NightSkin::cover(canvas, box, picture);
    if (!picture)
        return;
    canvas.fill(box, faded(Qt::black, shade), look().coverCorner);
    canvas.fill(box, reflection(box), look().coverCorner);
}

void ObsidianSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    const Box photo = face.bounds.inset(photoMat());
    canvas.fill(photo, reflection(photo), photoCorner());
}

void ObsidianSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double size = 20;
    constexpr double width = 1.1;
    if (middle) {
        const Box circle = box.square().inset(width / 2);
        canvas.stroke(arc(circle, 0, 1), QPen(aslant(circle), width));
    }
    canvas.stroke(symbolIn(box, symbol, middle ? size - 4 : size), roundPen(look().ink, width));
}

void ObsidianSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double dateSize = 12;
    constexpr double lineRoom = 26;
    constexpr double besideTime = 8;
    Box box = plate(canvas, face);
    Box footer = box.cutBottom(Bands::footer);
    const TextStyle label = style().header().sized(dateSize);
    footer.cutLeft(canvas.text(footer, reading.dateLine(), label) + 2 * Bands::gap);
    canvas.text(footer, reading.tag(), look().caption().aligned(Align::right));
    const Box day = box.cutBottom(lineRoom).centred(box.width(), 2);
    level(canvas, day, reading.dayFraction(), look().accent);
    const FigureStyle time = figure(look().clockCap).kerned();
    const double width = canvas.figure(box, reading.time(), {}, time);
    box.cutLeft(width + besideTime);
    const double base = box.center().y() + look().clockCap / 2;
    canvas.text(Box(box.x(), base - dateSize, box.width(), dateSize), reading.meridiem, label.coloured(look().soft));
}

void ObsidianSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr double picture = 20;
    constexpr double gap = 8;
    constexpr double textSize = 11;
    dayColumns(box, reading, 5, 0, [&](Box column, const WeatherReading::Day& day, qsizetype index) {
        const TextStyle caption = look().caption().sized(textSize).aligned(Align::centre);
        canvas.text(column.cutTop(Bands::footer), day.initial, caption.coloured(index == 0 ? look().ink : look().soft));
        column.cutTop(gap);
        pictogram(canvas, column.cutTop(picture), day.sky);
        column.cutTop(gap);
        canvas.text(column.cutTop(Bands::footer), temperatureIn(day.high, caption, column.width()),
            caption.coloured(look().ink));
        canvas.text(column.cutBottom(Bands::footer), temperatureIn(day.low, caption, column.width()), caption);
        // From the highest down to the lowest, on one scale for all days.
        const Box scale = column.inset(0, 4).centred(1.2, column.height() - 8);
        canvas.fill(scale, look().faint, 0.6);
        canvas.fill(span(scale, day.lowFraction, day.highFraction),
            linear(scale.bottomLeft(), scale.topLeft(), spectrum()), 0.6);
    });
}

} // namespace

std::shared_ptr<const FaceRenderer> obsidianSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<ObsidianSkin>(NightLook::of(Skin::obsidian, accent));
}

} // namespace ambrelle
