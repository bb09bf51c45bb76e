// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Pens.h"
#include "skins/groove/GroovePieces.h"
#include "skins/groove/GrooveStyle.h"

#include <array>

namespace ambrelle::groove {

using namespace Qt::StringLiterals;

namespace {

/// A picture of a sky in a box of 48 units, cut from discs and round bars.
class FatSky {
public:
    FatSky(Canvas& canvas, const SkinStyle& style)
        : m_canvas(canvas)
        , m_style(style)
    {
    }

    void draw(Sky sky) const
    {
        switch (sky) {
        case Sky::clear: sun({24, 24}, 11); break;
        case Sky::clearNight: moon({22.5, 25.5}, 17.5); break;
        case Sky::partly:
            sun({30, 17.5}, 8.6);
            cloud(2, 44);
            break;
        case Sky::partlyNight:
            moon({32, 17}, 13);
            cloud(2, 44);
            break;
        case Sky::cloudy: cloud(3, 36); break;
        case Sky::fog: fog(); break;
        case Sky::unknown: bar({16, 24}, {32, 24}, m_style.soft); break;
        default: cloud(3, highBase); falling(sky);
        }
    }

private:
    static constexpr double highBase = 30; // of a cloud with something below

    void sun(QPointF centre, double radius) const
    {
        sunburst(m_canvas, centre, radius, m_style.accent2, m_style.accent);
    }

    void moon(QPointF centre, double radius) const
    {
        const Box shade = squareAbout(centre + QPointF(radius * 0.5, -radius * 0.34), radius * 0.84);
        m_canvas.fill(arc(squareAbout(centre, radius), 0, 1).subtracted(arc(shade, 0, 1)), m_style.accent2);
    }

    /// Three discs on the level `base`, and a gap to what stands behind them.
    void cloud(double left, double base) const
    {
        constexpr double gap = 2;
        constexpr std::array discs{QPointF(8.6, 8.6), QPointF(21, 12), QPointF(33, 9)}; // x and radius
        for (const bool edge : {true, false}) {
            const double grown = edge ? gap : 0;
            const QColor& colour = edge ? chocolate : m_style.ink;
            for (const QPointF& disc : discs)
                m_canvas.disc({left + disc.x(), base - disc.y()}, disc.y() + grown, colour);
            m_canvas.fill(Box(left + discs.front().x(), base - 8, 24.4, 8 + grown), colour);
        }
    }

    void bar(QPointF from, QPointF to, const QColor& colour) const { m_canvas.line(from, to, roundPen(colour, 5)); }

    void fog() const
    {
        bar({16, 10}, {42, 10}, m_style.ink);
        bar({6, 19.5}, {34, 19.5}, m_style.soft);
        bar({13, 29}, {42, 29}, m_style.ink);
        bar({6, 38.5}, {30, 38.5}, m_style.soft);
    }

    void falling(Sky sky) const
    {
        constexpr double below = highBase + 6;
        if (sky == Sky::thunder) {
            const QPainterPath bolt =
                straightLine({{28, 24}, {17, 37.5}, {23, 37.5}, {19.5, 47.5}, {32, 33.5}, {25.8, 33.5}, {28, 24}});
            m_canvas.stroke(bolt, roundPen(chocolate, 4.4));
            m_canvas.fill(bolt, m_style.accent2);
            m_canvas.stroke(bolt, roundPen(m_style.accent2, 1.2));
            return;
        }
        const bool many = sky != Sky::drizzle;
        for (const double x : many ? QList<double>{13, 24, 35} : QList<double>{18, 30}) {
            const double length = sky == Sky::rain ? 8 : 3;
            if (sky == Sky::snow)
                m_canvas.disc({x, below + (x == 24 ? 6 : 1.5)}, 3.4, m_style.ink);
            else
                m_canvas.line(
                    {x + length * 0.25, below}, {x - length * 0.25, below + length}, roundPen(m_style.accent, 4.6));
        }
    }

    Canvas& m_canvas;
    const SkinStyle& m_style;
};

} // namespace

void skyPicture(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky)
{
    constexpr double units = 48;
    const Box square = box.square();
    const auto draw = [&](Canvas& layer) {
        QTransform place = QTransform::fromTranslate(square.x(), square.y());
        place.scale(square.width() / units, square.width() / units);
        layer.mapped(place, [&] { FatSky(layer, style).draw(sky); });
    };
    canvas.still(u"sky"_s, square.inset(-1), draw, static_cast<int>(sky));
}

} // namespace ambrelle::groove
