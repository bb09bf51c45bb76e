// SPDX-License-Identifier: MIT

#include "skins/WoodenFrame.h"

#include <array>

namespace ambrelle {

namespace {

/// One of the four pieces: its outer edge, and how strongly the light from above falls on it.
struct Piece {
    QPointF from;
    QPointF to;
    QPointF inwards;
    double light;
    double shadow; ///< how far it reaches, in widths of the frame
};

std::array<Piece, 4> pieces(const Painting& painting)
{
    const QPointF lowerLeft = painting.at(0, 0);
    const QPointF lowerRight = painting.at(1, 0);
    const QPointF upperLeft = painting.at(0, 1);
    const QPointF upperRight = painting.at(1, 1);
    return {{
        {upperLeft, upperRight, {0, -1}, 1.12, 1.7},
        {lowerLeft, upperLeft, {1, 0}, 1.02, 1.1},
        {upperRight, lowerRight, {-1, 0}, 0.9, 1.1},
        {lowerRight, lowerLeft, {0, 1}, 0.82, 0.6},
    }};
}

/// The piece as it is cut: its ends are mitred.
QPainterPath outline(const Piece& piece, double width)
{
    const QPointF way = piece.to - piece.from;
    const QPointF along = way / (std::abs(way.x()) + std::abs(way.y())) * width;
    const QPointF in = piece.inwards * width;
    QPainterPath path(piece.from);
    path.lineTo(piece.to);
    path.lineTo(piece.to - along + in);
    path.lineTo(piece.from + along + in);
    path.closeSubpath();
    return path;
}

/// Fades from the inner edge of the frame into the picture.
void shadow(Painting& painting, const Piece& piece, double width)
{
    const QPointF start = piece.from + piece.inwards * width;
    const QPointF end = start + piece.inwards * width * piece.shadow;
    painting.fill(Ink::linear(start, end, {{0, black(0.42)}, {0.35, black(0.17)}, {1, black(0)}}, Ink::Ends::open));
}

/// Rounded over its width: bright near the outer edge, dark in the groove at the inner one.
void paintPiece(Painting& painting, const Piece& piece, double width, const RGBA& wood)
{
    const RGBA base = wood.scaled(piece.light);
    painting.fill(outline(piece, width),
        Ink::linear(piece.from, piece.from + piece.inwards * width,
            {{0, base.scaled(0.8)}, {0.22, base.scaled(1.12)}, {0.62, base}, {0.86, base.scaled(0.82)},
                {0.92, base.scaled(0.5)}, {1, base.scaled(0.62)}}));
}

/// Streaks along each piece, in units of the height.
void figure(Painting& painting, double width, const Perlin& grain)
{
    const double w = painting.width();
    const double h = painting.height();
    const double rise = std::max(0.0, h - 2 * width);
    const auto streak = [grain](double along, double across) {
        const double value = grain.fbm(3 * along, 160 * across, 3, 2);
        return black(0.5 * smoothstep(0.5, 0.75, value));
    };
    for (const double y : {0.0, h - width})
        painting.raster(QRectF(0, y, w, width), 1.0, [streak](double x, double up) { return streak(x, up); });
    for (const double x : {0.0, w - width})
        painting.raster(
            QRectF(x, width, width, rise), 1.0, [streak](double right, double y) { return streak(y, right); });
}

} // namespace

void paintWoodenFrame(Painting& painting, double width, const RGBA& wood, const Perlin& grain)
{
    const std::array<Piece, 4> all = pieces(painting);
    for (const Piece& one : all)
        shadow(painting, one, width);
    for (const Piece& one : all)
        paintPiece(painting, one, width, wood);
    figure(painting, width, grain);
}

} // namespace ambrelle
