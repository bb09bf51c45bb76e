// SPDX-License-Identifier: MIT

#include "scenes/SceneOrnament.h"

#include "drawing/Colours.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double softEdge = 1; // how far smoothed edges reach, points
constexpr int dotsOfBlock = 8; // in a row: a dragged widget changes few blocks
constexpr int fadeSteps = 12;

struct GridDot {
    QPointF centre;
    int level = fadeSteps; ///< of opacity

    bool operator==(const GridDot&) const = default;
};

QRectF around(QPointF centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

QRectF grown(const QRectF& area, double by)
{
    return area.adjusted(-by, -by, by, by);
}

/// A gradient may be strong anywhere.
bool isStrong(const QBrush& brush)
{
    return brush.style() != Qt::SolidPattern || brush.color().alphaF() > SceneOrnament::strong + 0.001;
}

/// How far a stroke reaches beyond its path.
double reachOf(const QPen& pen)
{
    const double half = pen.widthF() / 2;
    return pen.joinStyle() == Qt::MiterJoin ? half * pen.miterLimit() : half * std::sqrt(2.0);
}

} // namespace

SceneOrnament::SceneOrnament(QList<Item> items, const QSizeF& size, const std::optional<QColor>& accent)
    : SceneLayout(std::move(items), size)
    , m_accent(accent)
{
}

void SceneOrnament::drawLike(const SkinStyle& style)
{
    m_scene.finish = style.finish;
    m_scene.manner = style.manner;
}

QString SceneOrnament::numbered(const QString& name)
{
    return u"%1-%2"_s.arg(name).arg(++m_numbers[name]);
}

bool SceneOrnament::isFreeOfLines(const QRectF& area) const
{
    return std::ranges::none_of(
        m_lines, [&](const Drawn& line) { return comesNear(line.path, area, line.reach + softEdge); });
}

/// Rectangles that follow the path through the screen and hold little else.
QList<QRectF> SceneOrnament::areasAlong(const QPainterPath& path, double reach) const
{
    constexpr double stretch = 64; // points: a slanting line is cut into pieces no longer
    const auto sizeOf = [](const QRectF& area) { return area.width() * area.height(); };
    QList<QRectF> areas;
    const auto append = [&](QPointF from, QPointF to) {
        const QRectF piece =
            grown(QRectF(from, to).normalized(), reach) & screen(); // a cut may be a rounding beyond it
        if (piece.isEmpty())
            return;
        const QRectF both = areas.isEmpty() ? QRectF() : areas.last() | piece;
        if (!areas.isEmpty() && sizeOf(both) <= sizeOf(areas.last()) + sizeOf(piece))
            areas.last() = both;
        else
            areas.append(piece);
    };
    for (const QPolygonF& line : path.toSubpathPolygons()) {
        for (qsizetype i = 1; i < line.size(); ++i) {
            const QLineF whole(line[i - 1], line[i]);
            const int count = static_cast<int>(whole.length() / stretch) + 1;
            for (int part = 0; part < count; ++part)
                append(whole.pointAt(static_cast<double>(part) / count), whole.pointAt((part + 1.0) / count));
        }
    }
    return areas;
}

bool SceneOrnament::dot(const QString& name, QPointF centre, double radius, const QColor& colour)
{
    const QRectF place = grown(around(centre, radius), softEdge);
    if (!screen().contains(place) || (isStrong(colour) && !isFree(around(centre, radius))))
        return false;
    add(
        name, place, [](Canvas& canvas, QPointF at, double size, const QColor& ink) { canvas.disc(at, size, ink); },
        centre, radius, colour);
    return true;
}

bool SceneOrnament::line(const QString& name, QPointF from, QPointF to, const QPen& pen)
{
    QPainterPath path(from);
    path.lineTo(to);
    return line(name, path, pen);
}

bool SceneOrnament::line(const QString& name, const QPainterPath& path, const QPen& pen)
{
    const double half = pen.widthF() / 2;
    const double reach = reachOf(pen) + softEdge;
    const QPainterPath kept = isStrong(pen.brush()) ? outside(path, half, reach) : onScreen(path, reach);
    if (kept.isEmpty())
        return false;
    m_lines.append({kept, half});
    addAlong(
        name, kept, reach,
        [](Canvas& canvas, const QPainterPath& course, const QPen& ink) { canvas.stroke(course, ink); }, kept, pen);
    return true;
}

bool SceneOrnament::label(const QString& name, const Box& box, const QString& text, const TextStyle& style)
{
    const auto shaped = shape(style.face, style.size, text);
    const double spare = box.width() - shaped->width;
    if (spare < 0 || text.isEmpty())
        return false;
    const double x = style.align == Align::left ? 0 : style.align == Align::right ? spare : spare / 2;
    const QPointF start(box.x() + x, Canvas::baseline(box, style));
    const QRectF place = grown(shaped->ink.translated(start), 2 * softEdge); // letters are set on whole pixels
    if (!isFree(place) || !isFreeOfLines(place))
        return false;
    reserve(place);
    add(
        name, place,
        [](Canvas& canvas, const QRectF& where, const QString& words, const Typeface& face, double size, Align side,
            const QColor& ink) {
            canvas.text(where, words, {.face = face, .size = size, .colour = ink, .align = side});
        },
        QRectF(box), text, style.face, style.size, style.align, style.colour);
    return true;
}

bool SceneOrnament::icon(const QString& name, QPointF centre, const QString& symbol, double size, const QColor& colour)
{
    const QRectF place = grown(around(centre, size / 2), softEdge);
    if (!isFree(place) || !isFreeOfLines(place))
        return false;
    reserve(place);
    add(
        name, place,
        [](Canvas& canvas, const QRectF& where, const QString& sign, double across, const QColor& ink) {
            canvas.symbol(where, sign, across, ink);
        },
        place, symbol, size, colour);
    return true;
}

void SceneOrnament::dotGrid(
    const QString& name, const QRectF& area, double pitch, double radius, const QColor& colour, double fade)
{
    const QRectF room = grown(screen(), -radius - softEdge);
    const double block = pitch * dotsOfBlock;
    const auto first = [](double edge, double step) { return static_cast<int>(std::floor(edge / step)); };
    const QRectF drawn = area & screen();
    for (int row = first(drawn.top(), block); row <= first(drawn.bottom(), block); ++row) {
        for (int column = first(drawn.left(), block); column <= first(drawn.right(), block); ++column) {
            QList<GridDot> dots;
            QRectF place;
            for (int index = 0; index < dotsOfBlock * dotsOfBlock; ++index) {
                const int across = index % dotsOfBlock;
                const int down = index / dotsOfBlock;
                const QPointF centre(column * block + (across + 0.5) * pitch, row * block + (down + 0.5) * pitch);
                const double depth = std::min({centre.x() - area.left(), area.right() - centre.x(),
                    centre.y() - area.top(), area.bottom() - centre.y()});
                const double level = fade > 0 ? std::clamp(depth / fade, 0.0, 1.0) : 1.0;
                const int step = static_cast<int>(std::lround(level * fadeSteps));
                if (depth <= 0 || step == 0 || !room.contains(centre) || !isFree(around(centre, radius)))
                    continue;
                dots.append({centre, step});
                place |= grown(around(centre, radius), softEdge);
            }
            if (dots.isEmpty())
                continue;
            add(
                name, place,
                [](Canvas& canvas, const QList<GridDot>& all, double size, const QColor& ink) {
                    for (const GridDot& each : all)
                        canvas.disc(each.centre, size, faded(ink, static_cast<double>(each.level) / fadeSteps));
                },
                dots, radius, colour);
        }
    }
}

} // namespace ambrelle
