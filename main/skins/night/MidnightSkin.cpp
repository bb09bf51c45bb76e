// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

namespace ambrelle {

namespace {

const QColor midnightSky(0x9C, 0xC4, 0xFF); // what large figures fade to

/// An analyst's dashboard at night: navy cards and glowing charts.
class MidnightSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    FigureStyle figure(double cap) const override;
    void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    QGradientStops spectrum() const override { return {{0, look().accent}, {1, look().accent2}}; }
    QGradientStops ringSpectrum() const override { return {{0, look().accent}, {1, look().accent3}}; }
    void graphGround(Canvas& canvas, const Box& box) const override;
    TextStyle rowValue(qsizetype index) const override;
};

void MidnightSkin::panel(Canvas& layer, const FaceContext& face) const
{
    constexpr double reach = 130;
    layer.fill(face.bounds, halo(face.bounds.topRight(), reach, look().accent3, 0.20), look().corner);
    layer.frame(face.bounds, QPen(faded(look().accent, 0.28), 1), look().corner);
}

FigureStyle MidnightSkin::figure(double cap) const
{
    QLinearGradient fade(0, 0, 0, 1);
    fade.setStops({{0, Qt::white}, {1, midnightSky}});
    return style().figure(cap).filled(fade);
}

void MidnightSkin::graphGround(Canvas& canvas, const Box& box) const
{
    constexpr int lines = 4;
    for (int line = 0; line < lines; ++line)
        canvas.rule(Box(box).cutTop(1).moved(0, (box.height() - 1) * line / (lines - 1)), look().faint, 0.8);
}

void MidnightSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype) const
{
    level(canvas, row.cutBottom(look().lines.level), fraction, look().accent);
}

TextStyle MidnightSkin::rowValue(qsizetype) const
{
    return style().rowValue().faced(look().label).coloured(look().ink);
}

} // namespace

std::shared_ptr<const FaceRenderer> midnightSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<MidnightSkin>(NightLook::of(Skin::midnight, accent));
}

} // namespace ambrelle
