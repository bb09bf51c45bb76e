// SPDX-License-Identifier: MIT

#include "wallpapers/Painting.h"

#include "drawing/Pens.h"
#include "wallpapers/InkLayer.h"
#include "wallpapers/SpecksLayer.h"
#include "wallpapers/TilePrinter.h"

#include <QPainter>

#include <cmath>

namespace ambrelle {

namespace {

void requireFinite(const QRectF& area)
{
    if (!std::isfinite(area.x() + area.y() + area.width() + area.height()))
        qFatal("Painting: a size is not finite");
}

void requireCount(int count)
{
    if (count < 0)
        qFatal("Painting: there are no %d things", count);
}

} // namespace

Painting::Painting(QSize pixels)
    : m_size(pixels)
{
    if (pixels.width() < 0 || pixels.height() < 0)
        qFatal("Painting: %d x %d is no size", pixels.width(), pixels.height());
}

Painting::~Painting() = default;

void Painting::fill(const Ink& ink)
{
    m_layers.push_back(std::make_unique<InkLayer>(ink, m_size));
}

void Painting::fill(const QRectF& area, const Ink& ink)
{
    stencil(area, ink, [&area](QPainter& painter) { painter.drawRect(area); });
}

void Painting::fill(const QPainterPath& shape, const Ink& ink)
{
    stencil(shape.boundingRect(), ink, [&shape](QPainter& painter) { painter.drawPath(shape); });
}

void Painting::stroke(const QPainterPath& path, double thickness, const Ink& ink)
{
    const double half = thickness / 2;
    stencil(path.boundingRect().adjusted(-half, -half, half, half), ink,
        [&](QPainter& painter) { painter.strokePath(path, roundPen(Qt::black, thickness)); });
}

void Painting::stencil(const QRectF& area, const Ink& ink, const std::function<void(QPainter&)>& draw)
{
    requireFinite(area);
    const QRectF turned(area.left(), height() - area.bottom(), area.width(), area.height());
    const QRect visible = turned.toAlignedRect() & QRect(QPoint(), m_size);
    if (visible.isEmpty())
        return;
    QImage coverage(visible.size(), QImage::Format_Alpha8);
    coverage.fill(0);
    QPainter painter(&coverage);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.translate(-visible.left(), height() - visible.top());
    painter.scale(1, -1);
    draw(painter);
    painter.end();
    m_layers.push_back(std::make_unique<InkLayer>(ink, m_size, coverage, visible.topLeft()));
}

void Painting::verticalGradient(const RGBA& top, const RGBA& bottom)
{
    if (m_size.isEmpty())
        return;
    gradient({0, 0}, {0, height()}, {{0, bottom}, {1, top}});
}

void Painting::glow(QPointF at, double radius, const RGBA& colour)
{
    if (m_size.isEmpty())
        return;
    fill(Ink::radial(at, radius, {{0, colour}, {1, colour.withAlpha(0)}}));
}

void Painting::softGlow(QPointF at, double radius, const RGBA& colour)
{
    if (m_size.isEmpty())
        return;
    fill(Ink::radial(at, radius, eased({{0, colour}, {1, colour.withAlpha(0)}})));
}

void Painting::vignette(double strength)
{
    if (m_size.isEmpty())
        return;
    fill(Ink::radial(at(0.5, 0.5), std::hypot(width(), height()) / 2, {{0.45, black(0)}, {1, black(strength)}},
        Ink::Ends::extended));
}

void Painting::stars(int count, double maxY, SeededRandom& random)
{
    requireCount(count);
    constexpr double lowest = 0.35;
    if (maxY < lowest)
        qFatal("Painting::stars: %g is too low", maxY);
    stencil(all(), white(), [&](QPainter& painter) {
        for (int i = 0; i < count; ++i) {
            const double radius = random.in(0.3, 1.1) * width() / 2000;
            painter.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(random.in(0.08, 0.5))));
            const double x = random.in(0, width());
            painter.drawEllipse(QPointF(x, random.in(lowest, maxY) * height()), radius, radius);
        }
    });
}

void Painting::grain(double amount, SeededRandom& random)
{
    const double side = std::max(width() / 1800, 1.0);
    specks(countFor(*this, 400), [&, this] {
        const RGBA colour = random.in(0, 1) > 0.5 ? white(amount) : black(amount);
        const double x = random.in(0, width());
        return std::pair{QRectF(x, random.in(0, height()), side, side), colour};
    });
}

void Painting::specks(int count, const std::function<std::pair<QRectF, RGBA>()>& next)
{
    requireCount(count);
    auto layer = std::make_unique<SpecksLayer>(m_size);
    for (int i = 0; i < count; ++i) {
        const auto [area, colour] = next();
        requireFinite(area);
        layer->add({area.left(), height() - area.bottom(), area.width(), area.height()}, colour);
    }
    m_layers.push_back(std::move(layer));
}

void Painting::addRaster(const QRectF& area, double scale, RasterLayer::Shader shader)
{
    requireFinite(area);
    if (!(scale >= 1) || !std::isfinite(scale))
        qFatal("Painting::raster: %g is no scale", scale);
    if (area.isEmpty() || m_size.isEmpty())
        return;
    const QRectF turned(area.left(), height() - area.bottom(), area.width(), area.height());
    m_layers.push_back(std::make_unique<RasterLayer>(m_size, turned, scale, std::move(shader)));
}

QImage Painting::render(int threads) const
{
    return TilePrinter(m_size, m_layers).print(threads);
}

int countFor(const Painting& painting, double area)
{
    return static_cast<int>(painting.width() * painting.height() / area);
}

} // namespace ambrelle
