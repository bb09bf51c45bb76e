// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Plates.h"
#include "skins/night/NightSkin.h"
#include "skins/Skins.h"

namespace ambrelle {

namespace {

/// Dark frosted glass that splits light: white goes in, and colours come out on edges and on the time.
class PrismSkin final : public NightSkin {
public:
    using NightSkin::draw;
    using NightSkin::NightSkin;

    FigureStyle figure(double cap) const override;
    void rowMark(Canvas& canvas, Box& line, qsizetype index) const override;

protected:
    void panel(Canvas& layer, const FaceContext& face) const override;
    QGradientStops spectrum() const override
    {
        return {{0, look().accent}, {0.5, look().accent2}, {1, look().accent3}};
    }
};

void PrismSkin::panel(Canvas& layer, const FaceContext& face) const
{
    const Box& box = face.bounds;
    sheen(layer, box, look().corner, Qt::white, 0.16, 0.02, 0.5);
    layer.frame(box, QPen(along(box.topLeft(), box.bottomRight(), look().accent), 1.2), look().corner);
}

FigureStyle PrismSkin::figure(double cap) const
{
    FigureStyle plain = style().figure(cap);
    if (cap < look().clockCap)
        return plain;
    QLinearGradient split(0, 0, 1, 0);
    split.setStops(spectrum());
    return plain.filled(split);
}

void PrismSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double width = 3;
    const QGradientStops colours = spectrum();
    canvas.fill(line.cutLeft(width).inset(0, 3), colours[index % colours.size()].second, width / 2);
    line.cutLeft(8);
}

} // namespace

std::shared_ptr<const FaceRenderer> prismSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<PrismSkin>(NightLook::of(Skin::prism, accent));
}

} // namespace ambrelle
