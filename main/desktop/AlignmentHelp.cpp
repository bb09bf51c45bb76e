#include "desktop/AlignmentHelp.h"

#include "desktop/ScreenPlacement.h"

#include <array>
#include <cmath>

namespace ambrelle {

namespace {

constexpr double sameLine = 0.01;

/// What a rectangle is along one axis.
struct Span {
    double low;
    double high;

    double middle() const { return (low + high) / 2; }
    bool overlaps(const Span& other) const { return low < other.high && other.low < high; }
};

enum class Part { low, middle, high };

double partOf(const Span& span, Part part)
{
    switch (part) {
    case Part::low: return span.low;
    case Part::middle: return span.middle();
    case Part::high: return span.high;
    }
    Q_UNREACHABLE();
}

/// A place that attracts one part of the dragged widget, and where its guide is drawn.
struct Line {
    Part part;
    double at;
    double guide;
};

Span along(const QRectF& rect, Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? Span{rect.left(), rect.right()} : Span{rect.top(), rect.bottom()};
}

/// Of an area that the widget lies in.
void addInner(QList<Line>& lines, const Span& area)
{
    for (const Part part : {Part::low, Part::middle, Part::high})
        lines.append({part, partOf(area, part), partOf(area, part)});
}

void addNeighbour(QList<Line>& lines, const Span& neighbour, bool beside)
{
    addInner(lines, neighbour);
    lines.append({Part::low, neighbour.high, neighbour.high});
    lines.append({Part::high, neighbour.low, neighbour.low});
    if (!beside)
        return;
    lines.append({Part::low, neighbour.high + AlignmentHelp::gap, neighbour.high + AlignmentHelp::gap / 2});
    lines.append({Part::high, neighbour.low - AlignmentHelp::gap, neighbour.low - AlignmentHelp::gap / 2});
}

QList<Line> linesFor(
    const QRectF& wanted, const QList<QRectF>& neighbours, const ScreenInfo& screen, Qt::Orientation axis)
{
    const Qt::Orientation across = axis == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
    QList<Line> lines;
    for (const QRectF& neighbour : neighbours) {
        if (neighbour.intersects(screen.frame))
            addNeighbour(lines, along(neighbour, axis), along(neighbour, across).overlaps(along(wanted, across)));
    }
    addInner(lines, along(screen.visibleFrame, axis));
    addInner(lines, along(screen.frame, axis));
    return lines;
}

double nearestShift(const Span& wanted, const QList<Line>& lines)
{
    std::optional<double> nearest;
    for (const Line& line : lines) {
        const double shift = line.at - partOf(wanted, line.part);
        if (std::abs(shift) <= AlignmentHelp::reach && (!nearest || std::abs(shift) < std::abs(*nearest)))
            nearest = shift;
    }
    return nearest.value_or(0);
}

/// A guide begins with the pixel before its line, and does not leave the screen.
QRectF guideArea(double at, const QRectF& screen, Qt::Orientation axis)
{
    const double start = std::floor(at) - 1;
    const QRectF area = axis == Qt::Horizontal ? QRectF(start, screen.top(), AlignmentHelp::thickness, screen.height())
                                               : QRectF(screen.left(), start, screen.width(), AlignmentHelp::thickness);
    return ScreenPlacement::movedInto(area, screen);
}

} // namespace

AlignmentHelp::AlignmentHelp(QList<QRectF> neighbours, QList<ScreenInfo> screens)
    : m_neighbours(std::move(neighbours))
    , m_screens(std::move(screens))
{
}

AlignmentHelp::Result AlignmentHelp::align(const QRectF& wanted) const
{
    const std::optional<ScreenInfo> screen = ScreenPlacement::screenNear(wanted, m_screens);
    if (!screen)
        return {wanted.topLeft(), {}};
    const QList<Line> columns = linesFor(wanted, m_neighbours, *screen, Qt::Horizontal);
    const QList<Line> rows = linesFor(wanted, m_neighbours, *screen, Qt::Vertical);
    const QRectF placed = wanted.translated(
        nearestShift(along(wanted, Qt::Horizontal), columns), nearestShift(along(wanted, Qt::Vertical), rows));
    Result result{placed.topLeft(), {}};
    const auto addGuides = [&](const QList<Line>& lines, Qt::Orientation axis) {
        for (const Line& line : lines) {
            const QRectF guide = guideArea(line.guide, screen->frame, axis);
            if (std::abs(line.at - partOf(along(placed, axis), line.part)) < sameLine && !result.guides.contains(guide))
                result.guides.append(guide);
        }
    };
    addGuides(columns, Qt::Horizontal);
    addGuides(rows, Qt::Vertical);
    return result;
}

} // namespace ambrelle
