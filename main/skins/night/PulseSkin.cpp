// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

#include <array>

namespace ambrelle {

namespace {

/// A fitness watch on the desk: thick rings in red, green and cyan, rounded figures.
class PulseSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    void heading(Canvas& canvas, const Box& line, const FaceContext& face, const QString& title) const override;

private:
    const QColor& colourOf(WidgetKind kind) const;
    /// A ring of `width` points in the circle of `box`, its track of the same hue.
    void ring(Canvas& canvas, const Box& box, double width, double fraction, const QColor& colour) const;
};

const QColor& PulseSkin::colourOf(WidgetKind kind) const
{
    switch (kind) {
    case WidgetKind::memory:
    case WidgetKind::battery:
    case WidgetKind::calendar: return look().accent2;
    case WidgetKind::disk:
    case WidgetKind::weather:
    case WidgetKind::network: return look().accent3;
    default: return look().accent;
    }
}

void PulseSkin::panel(Canvas& layer, const FaceContext& face) const
{
    layer.frame(face.bounds, QPen(faded(Qt::white, 0.08), 1), look().corner);
}

void PulseSkin::heading(Canvas& canvas, const Box& line, const FaceContext& face, const QString& title) const
{
    constexpr double size = 14;
    Box rest = line;
    canvas.symbol(rest.cutLeft(size), symbol(face.kind), size, colourOf(face.kind));
    rest.cutLeft(6);
    canvas.text(rest, title, style().header());
}

void PulseSkin::ring(Canvas& canvas, const Box& box, double width, double fraction, const QColor& colour) const
{
    constexpr double unlit = 0.18;
    const Gauge gauge = Gauge::in(box, 0, 360);
    const double middle = gauge.radius - width / 2;
    canvas.stroke(gauge.arc(0, 1, middle), QPen(faded(colour, unlit), width));
    if (fraction > 0)
        canvas.stroke(gauge.arc(0, fraction, middle), roundPen(colour, width));
}

void PulseSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double diameter = 92;
    constexpr double width = 9;
    constexpr double gap = 3;
    Box box = framed(canvas, face, reading.dateLine());
    Box rings = box.cutRight(diameter).centred(diameter, diameter);
    box.cutRight(12);
    canvas.text(box.cutBottom(Bands::footer), reading.tag(), look().caption());
    canvas.figure(box, reading.time(), {}, figure(look().clockCap).kerned());
    const std::array turns{std::pair(reading.hour24 % 12 / 12.0 + reading.minute / 720.0, look().accent),
        std::pair(reading.minute / 60.0, look().accent2)};
    for (const auto& [fraction, colour] : turns) {
        ring(canvas, rings, width, fraction, colour);
        rings = rings.inset(width + gap);
    }
    canvas.text(rings, reading.meridiem, look().caption().aligned(Align::centre));
}

} // namespace

std::shared_ptr<const FaceRenderer> pulseSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<PulseSkin>(NightLook::of(Skin::pulse, accent));
}

} // namespace ambrelle
