// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SeededRandom.h"
#include "wallpapers/Ink.h"
#include "wallpapers/RasterLayer.h"

#include <QImage>
#include <QPainterPath>

#include <functional>
#include <memory>

class QPainter;

namespace ambrelle {

/// A wallpaper while a recipe builds it up: a sequence of things painted one over the other, at first black. Places are
/// in pixels from the lower left corner, y up. What goes on it is painted when the picture is rendered, with far finer
/// steps than a screen has; the last step scatters the rest, so that dark gradients show no bands.
class Painting {
public:
    explicit Painting(QSize pixels);
    ~Painting();

    double width() const { return m_size.width(); }
    double height() const { return m_size.height(); }
    /// A place by fractions of the width and the height.
    QPointF at(double x, double y) const { return {x * width(), y * height()}; }
    QRectF all() const { return {0, 0, width(), height()}; }

    void fill(const Ink& ink);
    void fill(const QRectF& area, const Ink& ink);
    void fill(const QPainterPath& shape, const Ink& ink);
    /// A line of `thickness` pixels along the path, with round ends and joins.
    void stroke(const QPainterPath& path, double thickness, const Ink& ink);
    /// Whatever `draw` paints within `area` lets the ink through as far as it is opaque; its colours do not matter. The
    /// painter is antialiased, without a pen, with an opaque brush, and its y points up.
    void stencil(const QRectF& area, const Ink& ink, const std::function<void(QPainter&)>& draw);

    void gradient(QPointF from, QPointF to, const GradientStops& stops) { fill(Ink::linear(from, to, stops)); }
    void verticalGradient(const RGBA& top, const RGBA& bottom);
    /// Full at the centre, gone at the radius.
    void glow(QPointF at, double radius, const RGBA& colour);
    /// The same, but it neither comes to a point at the centre nor ends at a rim.
    void softGlow(QPointF at, double radius, const RGBA& colour);
    /// Darkens the edges: black from nothing at 0.45 of the way into the corners to `strength` there.
    void vignette(double strength);

    /// White dots between 0.35 and `maxY` of the height; four draws each.
    void stars(int count, double maxY, SeededRandom& random);
    /// A film grain of black and white dots; three draws each.
    void grain(double amount, SeededRandom& random);
    /// `count` small rectangles, each as `next` gives it: the area in pixels, and the colour.
    void specks(int count, const std::function<std::pair<QRectF, RGBA>()>& next);

    /// Paints `area` with the colours that `shader` gives, one sample every `scale` pixels and smooth between them. The
    /// shader gets a place in units of the height: x from 0 to width / height, y from 0 at the bottom to 1 at the top.
    template <typename Shader> void raster(const QRectF& area, double scale, Shader shader)
    {
        addRaster(area, scale, [shader](const RasterLayer::Row& row, std::span<Pixel> samples) {
            for (std::size_t i = 0; i < samples.size(); ++i)
                samples[i] = pixel(shader(row.x(i), row.y));
        });
    }

    /// The finished picture in Format_RGB888; null when there is no memory for it. The same for any number of threads.
    QImage render(int threads) const;

private:
    void addRaster(const QRectF& area, double scale, RasterLayer::Shader shader);

    QSize m_size;
    std::vector<std::unique_ptr<Layer>> m_layers;
};

/// One for every `area` pixels of the picture.
int countFor(const Painting& painting, double area);

} // namespace ambrelle
