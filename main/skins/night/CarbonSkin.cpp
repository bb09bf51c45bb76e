// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/StyledDial.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// A race car's dash: carbon weave, heavy slanted figures, rows of blocks.
class CarbonSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void rowMark(Canvas& canvas, Box& line, qsizetype index) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
};

void CarbonSkin::panel(Canvas& layer, const FaceContext& face) const
{
    constexpr double weave = 4;
    constexpr double lineShare = 0.4; // of the lower edge
    const Box& box = face.bounds;
    hatch(layer, roundedPath(box, look().corner), 45, weave, flatPen(faded(Qt::white, 0.035), weave / 2));
    layer.frame(box, QPen(faded(Qt::white, 0.18), 1), look().corner);
    layer.fill(Box(box.x() + look().inset, box.bottom() - 3, box.width() * lineShare, 3), look().accent);
}

Box CarbonSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const StyledDial blocks{.flavor = dial(),
        .value = colour,
        .track = look().track,
        .measures = {.width = look().lines.ring, .count = 28, .slant = 4}};
    return blocks.draw(canvas, box, fraction);
}

void CarbonSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double pitch = 5;
    const int count = static_cast<int>(box.width() / pitch);
    const int lit = litOf(fraction, count);
    blocks(canvas, box.centred(box.width(), look().lines.level), count, 1.5,
        [&](int index) { return index < lit ? colour : look().track; }, {.slant = 20});
}

void CarbonSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    const Box block = line.cutLeft(20).centred(20, 14);
    const QColor fill = index == 0 ? look().accent : look().faint;
    const GroundScope ground(canvas, fill);
    canvas.fill(block, fill, 2);
    canvas.text(
        block, u"P%1"_s.arg(index + 1), style().header().sized(10.5).coloured(inkOn(fill)).aligned(Align::centre));
    line.cutLeft(Bands::gap);
}

} // namespace

std::shared_ptr<const FaceRenderer> carbonSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<CarbonSkin>(NightLook::of(Skin::carbon, accent));
}

} // namespace ambrelle
