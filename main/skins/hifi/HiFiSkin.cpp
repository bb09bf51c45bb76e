// SPDX-License-Identifier: MIT

#include "skins/hifi/HiFiSkin.h"

#include "faces/FaceKit.h"

#include "skins/hifi/Cabinet.h"
#include "skins/hifi/TunerScale.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace hifi;

namespace {

constexpr double screwRadius = 2.5;
constexpr double screwInset = 5.8; // on the champagne line
constexpr double pilotRadius = 2.6;

} // namespace

HiFiSkin::HiFiSkin(std::optional<QColor> accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ticks)
{
}

Box HiFiSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        cabinet(layer, face.bounds, style().corner, static_cast<unsigned>(face.kind) + 1);
        if (!face.medium())
            return;
        const double middle = face.bounds.center().y();
        screw(layer, {face.bounds.left() + screwInset, middle}, screwRadius, 24);
        screw(layer, {face.bounds.right() - screwInset, middle}, screwRadius, 101);
    });
    return face.bounds.inset(style().inset);
}

void HiFiSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    Box line = content.cutTop(14);
    const Box pilot = line.cutRight(pilotRadius * 2);
    canvas.still(u"pilot"_s, pilot.inset(-6, -3),
        [&](Canvas& layer) { lamp(layer, pilot.center(), pilotRadius, style().accent, true); });
    line.cutRight(4);
    canvas.text(line, title, style().header().coloured(pale).engraved(engraving));
    content.cutTop(style().titleGap);
}

Box HiFiSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    return tickDial(canvas, style(), box, fraction, colour);
}

void HiFiSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    TunerScale{.steps = 24, .every = 6, .colour = colour}.draw(canvas, box.centred(box.width(), 6));
    pointer(canvas, box.centred(box.width(), 8), fraction);
}

TextStyle HiFiSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, style().accent, cell.height());
}

void HiFiSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool) const
{
    canvas.symbol(box, symbol, 22, pale);
}

std::shared_ptr<const FaceRenderer> hifiSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<HiFiSkin>(accent);
}

} // namespace ambrelle
