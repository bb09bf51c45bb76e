// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

namespace {

constexpr double horizon = 0.42;
constexpr RGBA sunlight = hex(0xFFE2B0);

/// The deck from above, on a plain of which the eye hangs one unit high.
class CloudDeck {
public:
    explicit CloudDeck(SeededRandom& random)
        : m_billows(random.next())
        , m_crests(random.next())
    {
    }

    /// How much of the sun, low ahead on the right, comes from what the eye sees along a line that goes `side` to the
    /// right and `slope` down on each unit ahead; 0 to 1.
    double light(double side, double slope) const
    {
        const Place place = seen(side, slope);
        const double here = height(place, 5);
        const double towardsSun = height({place.u + 0.06, place.v + 0.03}, 3);
        return std::clamp(0.28 + 0.5 * here + 1.1 * (here - towardsSun), 0.0, 1.0);
    }

private:
    struct Place {
        double u; ///< to the right
        double v; ///< ahead
    };

    static Place placeAt(double level, double side, double slope)
    {
        constexpr double thickness = 0.24;
        const double ahead = (1 - thickness * level) / slope;
        return {side * ahead, ahead};
    }

    /// Follows the line into the deck until the clouds stand higher; only the large ones hide what is behind them.
    Place seen(double side, double slope) const
    {
        constexpr int levels = 11;
        double above = 0; // how far the line was over the clouds one level before
        for (int step = 0; step <= levels; ++step) {
            const double level = 1 - static_cast<double>(step) / levels;
            const double gap = level - height(placeAt(level, side, slope), 2);
            if (gap <= 0) {
                const double back = step == 0 ? 0 : gap / (gap - above);
                return placeAt(level + back / levels, side, slope);
            }
            above = gap;
        }
        return placeAt(0, side, slope);
    }

    /// How high the clouds stand there, 0 to 1.
    double height(const Place& place, int octaves) const
    {
        const double u = place.u;
        const double v = 0.4 * place.v;
        const double crease = m_crests.ridged(5 * u, 9 * v, octaves - 1);
        return smoothstep(0.1, 0.8, m_billows.fbm(2 * u, 5 * v, octaves, 2) + 0.35 * (0.55 - crease));
    }

    Perlin m_billows;
    Perlin m_crests;
};

/// Thin ice clouds high up, gone towards the horizon.
void cirrus(Painting& painting, const Perlin& field)
{
    const QRectF sky(painting.at(0, horizon), painting.at(1, 1));
    painting.raster(sky, 2.0, [field](double x, double y) {
        const double veil = smoothstep(0.5, 0.8, field.fbm(0.8 * x, 4 * y, 4, 2));
        return white(0.25 * veil * smoothstep(horizon, horizon + 0.12, y));
    });
}

void cloudDeck(Painting& painting, const CloudDeck& deck)
{
    constexpr RGBA lit = hex(0xF7FBFF);
    constexpr RGBA shaded = hex(0x8FA9C4);
    constexpr RGBA haze = hex(0xD3E8F6);
    constexpr double top = 0.44;
    constexpr double slopePerHeight = 1.7;
    constexpr double nearest = 0.004; // to looking along the plain
    const double middle = painting.width() / painting.height() / 2;
    const double between = slopePerHeight * 0.5 / painting.height(); // two looks per sample smooth the crests
    painting.raster(QRectF(painting.at(0, 0), painting.at(1, top)), 2.0, [=](double x, double y) {
        const double side = 1.3 * (x - middle);
        const double slope = slopePerHeight * (top + nearest - y);
        const double upper = std::max(slope - between, 0.5 * slopePerHeight * nearest);
        const double light = (deck.light(side, upper) + deck.light(side, slope + between)) / 2;
        const double far = smoothstep(0.14, horizon, y);
        const RGBA cloud = shaded.mixed(lit, light).mixed(haze, far);
        return cloud.withAlpha(smoothstep(top, horizon - 0.02, y));
    });
}

/// A low sun behind haze: a small bright heart in a wide warm light.
void sun(Painting& painting)
{
    const double h = painting.height();
    const QPointF centre = painting.at(0.82, 0.55);
    painting.fill(Ink::radial(centre, 0.45 * h,
        {{0, sunlight.withAlpha(0.6)}, {0.15, sunlight.withAlpha(0.45)}, {0.4, sunlight.withAlpha(0.19)},
            {0.7, sunlight.withAlpha(0.05)}, {1, sunlight.withAlpha(0)}}));
    constexpr RGBA heart = hex(0xFFF8EA);
    painting.fill(Ink::radial(centre, 0.11 * h,
        {{0, heart}, {0.13, heart}, {0.22, heart.withAlpha(0.72)}, {0.36, heart.withAlpha(0.36)},
            {0.6, heart.withAlpha(0.12)}, {1, heart.withAlpha(0)}}));
}

/// The rim of the instrument panel, lit along its edge.
void glareShield(Painting& painting)
{
    const double h = painting.height();
    QPainterPath edge(painting.at(0, 0.012));
    edge.cubicTo(painting.at(0.2, 0.05), painting.at(0.32, 0.05), painting.at(0.5, 0.05));
    edge.cubicTo(painting.at(0.68, 0.05), painting.at(0.8, 0.05), painting.at(1, 0.012));
    QPainterPath shield = edge;
    shield.lineTo(painting.at(1, 0));
    shield.lineTo(painting.at(0, 0));
    shield.closeSubpath();
    painting.fill(shield, Ink::linear({0, 0.05 * h}, {0, 0}, {{0, hex(0x23282D)}, {1, hex(0x0B0D10)}}));
    painting.stroke(edge, std::max(1.0, 0.0016 * h), sunlight.withAlpha(0.35));
}

} // namespace

void paintCockpitWallpaper(Painting& painting, SeededRandom& random)
{
    const CloudDeck deck(random);
    const Perlin ice{random.next()};
    const double h = painting.height();
    painting.gradient({0, horizon * h}, {0, h}, {{0, hex(0xBFE0F5)}, {1, hex(0x0B2F66)}});
    cirrus(painting, ice);
    cloudDeck(painting, deck);
    sun(painting);
    glareShield(painting);
    painting.grain(0.02, random);
    painting.vignette(0.4);
}

} // namespace ambrelle
