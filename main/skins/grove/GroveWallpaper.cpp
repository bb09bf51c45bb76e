// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

#include <QTransform>

#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0xD9B45B);

/// Mostly shade: moss is as light as the plates that lie on it.
void undergrowth(Painting& painting, SeededRandom& random)
{
    constexpr RGBA shade = hex(0x10291C);
    constexpr RGBA moss = hex(0x1F4932);
    const Perlin leaves{random.next()};
    painting.raster(painting.all(), 3.0, [=](double x, double y) {
        const double density = smoothstep(0.42, 1.1, leaves.fbm(2.2 * x, 2.2 * y, 4, 2));
        return shade.mixed(moss, density).withAlpha(0.6);
    });
}

/// A sprig of length 1 that grows from the origin to the right and bends upwards.
class Sprig {
public:
    Sprig();

    const QPainterPath& leaves() const { return m_leaves; }
    const QPainterPath& midribs() const { return m_midribs; }
    const QPainterPath& stem() const { return m_stem; }

private:
    static QPointF stemAt(double t) { return {t, 0.16 * t * t}; }
    void addLeaf(QPointF from, double angle, double length);

    QPainterPath m_leaves;
    QPainterPath m_midribs;
    QPainterPath m_stem;
};

Sprig::Sprig()
{
    constexpr int pairs = 9;
    m_leaves.setFillRule(Qt::WindingFill);
    m_stem.moveTo(stemAt(0));
    m_stem.quadTo({0.5, 0}, stemAt(1));
    for (int i = 0; i < pairs; ++i) {
        const double t = mix(0.14, 0.95, i / (pairs - 1.0));
        const double direction = std::atan(0.32 * t);
        const double length = 0.27 * std::sin(std::numbers::pi * mix(0.3, 0.88, t));
        const double spread = mix(1.15, 0.6, t);
        addLeaf(stemAt(t - 0.02), direction + spread, length);
        addLeaf(stemAt(t), direction - spread, length);
    }
    addLeaf(stemAt(1), std::atan(0.32), 0.11);
}

void Sprig::addLeaf(QPointF from, double angle, double length)
{
    QPainterPath leaf;
    leaf.moveTo(0.06, 0);
    leaf.cubicTo({0.3, 0.24}, {0.65, 0.2}, {1, 0});
    leaf.cubicTo({0.65, -0.16}, {0.3, -0.22}, {0.06, 0});
    QPainterPath midrib;
    midrib.lineTo(0.8, 0);
    QTransform place;
    place.translate(from.x(), from.y());
    place.rotateRadians(angle);
    place.scale(length, length);
    m_leaves.addPath(place.map(leaf));
    m_midribs.addPath(place.map(midrib));
}

enum class Corner { lowerLeft, upperRight };

/// Sprigs side by side up the left edge and along the lower one, or turned about in the upper right corner. Each is
/// laid over those before it like a pressed plant.
void grow(Painting& painting, SeededRandom& random, Corner corner, int count)
{
    const Sprig sprig;
    const double height = painting.height();
    for (int i = 0; i < count; ++i) {
        const double side = mix(-1, 1, i / (count - 1.0)); // of the corner: -1 to 0 up the edge, 0 to 1 along the other
        const double x = 0.26 * std::max(side, 0.0) + random.in(-0.01, 0.02);
        const double y = 0.26 * std::max(-side, 0.0) + random.in(-0.01, 0.02);
        const double angle = std::numbers::pi / 4 * (1 + 0.6 * side) + random.in(-0.15, 0.15);
        const double length = random.in(0.08, 0.16) * height;
        QTransform place;
        if (corner == Corner::upperRight) {
            place.translate(painting.width(), height);
            place.rotate(180);
        }
        place.translate(x * height, y * height);
        place.rotateRadians(angle);
        place.scale(length, length);
        painting.fill(place.map(sprig.leaves()), accent.withAlpha(0.16));
        painting.stroke(place.map(sprig.midribs()), std::max(0.0007 * height, 1.0), accent.withAlpha(0.3));
        painting.stroke(place.map(sprig.stem()), std::max(0.0015 * height, 1.0), accent.withAlpha(0.36));
    }
}

} // namespace

void paintGroveWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(hex(0x143524), hex(0x081A10));
    undergrowth(painting, random);
    grow(painting, random, Corner::lowerLeft, 6);
    grow(painting, random, Corner::upperRight, 5);
    painting.glow(painting.at(0.5, 0.95), 0.7 * painting.height(), hex(0x3E7A55, 0.2));
    painting.grain(0.02, random);
    painting.vignette(0.5);
}

} // namespace ambrelle
