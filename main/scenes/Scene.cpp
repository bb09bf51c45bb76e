// SPDX-License-Identifier: MIT

#include "scenes/Scene.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace ambrelle {

QRectF SceneSprite::place() const
{
    QRectF whole;
    for (const QRectF& area : m_areas)
        whole |= area;
    return whole;
}

QRectF Scene::bounds() const
{
    QRectF bounds;
    for (const SceneSprite& sprite : sprites)
        bounds |= sprite.place();
    return bounds;
}

QList<Canvas::MovingArea> Scene::moving() const
{
    QList<Canvas::MovingArea> all;
    for (const SceneSprite& sprite : sprites)
        all += sprite.moving();
    return all;
}

namespace {

// Device pixels. To fill more rows at once the toolkit wakes other threads, which costs more than it gains with thin
// marks.
constexpr int rowsOfBand = 90;

} // namespace

void Scene::draw(QPainter& painter, const QRectF& area, double time) const
{
    Canvas canvas(painter, {.finish = finish, .manner = manner});
    const QTransform toDevice = painter.deviceTransform();
    const QTransform fromDevice = toDevice.inverted();
    const QRect pixels = toDevice.mapRect(area).toAlignedRect();
    const int origin = static_cast<int>(std::lround(toDevice.dy())); // the same bands whichever part is drawn
    const int first =
        origin + static_cast<int>(std::floor(static_cast<double>(pixels.top() - origin) / rowsOfBand)) * rowsOfBand;
    for (int top = first; top <= pixels.bottom(); top += rowsOfBand) {
        const QRect rows(0, top, painter.device()->width(), rowsOfBand);
        const QRectF band = fromDevice.mapRect(QRectF(rows));
        const QRectF drawn = band & area;
        const auto isThere = [&drawn](const QRectF& part) { return part.intersects(drawn); };
        painter.save();
        painter.setClipRect(band, Qt::IntersectClip);
        for (const SceneSprite& sprite : sprites) {
            if (std::ranges::any_of(sprite.areas(), isThere))
                sprite.draw(canvas, time);
        }
        painter.restore();
    }
}

QList<QRectF> Scene::changes(const Scene& before, const Scene& after)
{
    if (before.finish != after.finish || before.manner != after.manner)
        return {before.bounds() | after.bounds()};
    QList<QRectF> changed;
    QList<bool> stays(before.sprites.size(), false);
    qsizetype next = 0; // those that stay keep their order, or lie over each other in another way
    for (const SceneSprite& sprite : after.sprites) {
        const auto from = before.sprites.begin() + next;
        const auto same = std::find(from, before.sprites.end(), sprite);
        if (same == before.sprites.end()) {
            changed += sprite.areas();
            continue;
        }
        next = same - before.sprites.begin();
        stays[next++] = true;
    }
    for (qsizetype index = 0; index < before.sprites.size(); ++index) {
        if (!stays[index])
            changed += before.sprites[index].areas();
    }
    return changed;
}

QRegion Scene::covered(int cell) const
{
    QRegion covered;
    const auto from = [cell](double edge) { return static_cast<int>(std::floor(edge / cell)) * cell; };
    const auto to = [cell](double edge) { return static_cast<int>(std::ceil(edge / cell)) * cell; };
    for (const SceneSprite& sprite : sprites) {
        for (const QRectF& area : sprite.areas()) {
            const QPoint corner(from(area.left()), from(area.top()));
            covered += QRect(corner, QSize(to(area.right()) - corner.x(), to(area.bottom()) - corner.y()));
        }
    }
    return covered;
}

QList<QRectF> Scene::inked(double cell) const
{
    const QRectF whole = bounds();
    const QSize cells(
        static_cast<int>(std::ceil(whole.right() / cell)) + 1, static_cast<int>(std::ceil(whole.bottom() / cell)) + 1);
    if (whole.isEmpty() || whole.left() < -cell || whole.top() < -cell)
        return whole.isEmpty() ? QList<QRectF>() : QList{whole};
    // Drawn in strips: a picture of the whole screen would be as large as what it is to spare.
    constexpr int rowsOfStrip = 64;
    constexpr int perCell = 4; // pixels: the faintest mark is still seen
    const double scale = perCell / cell;
    const QList<Canvas::MovingArea> everywhere = moving();
    QList<QRectF> areas;
    for (int first = 0; first < cells.height(); first += rowsOfStrip) {
        QImage strip(cells.width() * perCell, rowsOfStrip * perCell, QImage::Format_Alpha8);
        if (strip.isNull())
            return {whole};
        strip.fill(Qt::transparent);
        QPainter painter(&strip);
        painter.scale(scale, scale);
        painter.translate(0, -first * cell);
        draw(painter, {0, first * cell, cells.width() * cell, rowsOfStrip * cell});
        for (const Canvas::MovingArea& each : everywhere)
            painter.fillRect(each.area, Qt::black);
        painter.end();
        for (int row = 0; row < rowsOfStrip; ++row) {
            const auto isInked = [&](int column) {
                for (int y = row * perCell; y < (row + 1) * perCell; ++y) {
                    const uchar* line = strip.constScanLine(y) + static_cast<std::ptrdiff_t>(column) * perCell;
                    if (std::any_of(line, line + perCell, [](uchar alpha) { return alpha > 0; }))
                        return true;
                }
                return false;
            };
            for (int column = 0; column < cells.width(); ++column) {
                const int from = column;
                while (column < cells.width() && isInked(column))
                    ++column;
                if (column > from)
                    areas.append({from * cell, (first + row) * cell, (column - from) * cell, cell});
            }
        }
    }
    return areas;
}

} // namespace ambrelle
