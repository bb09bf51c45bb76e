// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

namespace ambrelle {

namespace {

const QColor candle(0xFF, 0xF4, 0xE2);

QPainterPath lozenge(QPointF centre, double radius)
{
    QPainterPath path(centre - QPointF(0, radius));
    path.lineTo(centre + QPointF(radius, 0));
    path.lineTo(centre + QPointF(0, radius));
    path.lineTo(centre - QPointF(radius, 0));
    path.closeSubpath();
    return path;
}

/// A theatre box: plum velvet under champagne light, slender italics.
class VelvetSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    FigureStyle figure(double cap) const override;
    void rowMark(Canvas& canvas, Box& line, qsizetype index) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    void bead(Canvas& canvas, QPointF point, const QColor& colour) const override;
    TextStyle rowValue(qsizetype index) const override;
};

void VelvetSkin::panel(Canvas& layer, const FaceContext& face) const
{
    constexpr double above = 40; // where the light hangs
    constexpr double inside = 5; // of the golden line
    const Box& box = face.bounds;
    const QPointF light(box.center().x(), box.top() - above);
    layer.fill(box, halo(light, box.height(), look().accent, 0.24), look().corner);
    layer.frame(box.inset(inside), QPen(faded(look().accent, 0.45), 0.7), look().corner - inside);
    layer.fill(lozenge({box.center().x(), box.bottom() - inside}, 3.5), look().accent);
}

FigureStyle VelvetSkin::figure(double cap) const
{
    QLinearGradient shimmer(0, 0, 0, 1);
    shimmer.setStops({{0, candle}, {1, look().accent}});
    return style().figure(cap).filled(shimmer);
}

void VelvetSkin::bead(Canvas& canvas, QPointF point, const QColor& colour) const
{
    canvas.fill(lozenge(point, look().lines.bead), colour);
}

void VelvetSkin::rowMark(Canvas& canvas, Box& line, qsizetype) const
{
    canvas.fill(lozenge(line.cutLeft(5).center(), 2.5), look().accent);
    line.cutLeft(7);
}

TextStyle VelvetSkin::rowValue(qsizetype) const
{
    return style().rowValue().faced(look().label).coloured(style().accentText());
}

} // namespace

std::shared_ptr<const FaceRenderer> velvetSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<VelvetSkin>(NightLook::of(Skin::velvet, accent));
}

} // namespace ambrelle
