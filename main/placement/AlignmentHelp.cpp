// SPDX-License-Identifier: MIT

#include "placement/AlignmentHelp.h"

#include "placement/ScreenPlacement.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace ambrelle {

namespace {

constexpr double sameLine = 0.01;
constexpr double overshoot = 12; // of a guide, beyond what it joins

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

/// A place that attracts one part of the dragged widget, where its guide is drawn, and what of the other axis it
/// belongs to.
struct Line {
    Part part;
    double at;
    double guide;
    Span across;
};

Span along(const QRectF& rect, Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? Span{rect.left(), rect.right()} : Span{rect.top(), rect.bottom()};
}

Qt::Orientation other(Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
}

/// Of an area that the widget lies in, or level with.
void addSameParts(QList<Line>& lines, const Span& area, const Span& across)
{
    for (const Part part : {Part::low, Part::middle, Part::high})
        lines.append({part, partOf(area, part), partOf(area, part), across});
}

void addNeighbour(QList<Line>& lines, const Span& neighbour, const Span& across, const Span& draggedAcross)
{
    constexpr double gap = AlignmentHelp::gap;
    addSameParts(lines, neighbour, across);
    lines.append({Part::low, neighbour.high, neighbour.high, across});
    lines.append({Part::high, neighbour.low, neighbour.low, across});
    if (!across.overlaps(draggedAcross))
        return;
    lines.append({Part::low, neighbour.high + gap, neighbour.high + gap / 2, across});
    lines.append({Part::high, neighbour.low - gap, neighbour.low - gap / 2, across});
}

QList<Line> linesFor(
    const QRectF& wanted, const QList<QRectF>& neighbours, const ScreenInfo& screen, Qt::Orientation axis)
{
    const Qt::Orientation across = other(axis);
    QList<Line> lines;
    for (const QRectF& neighbour : neighbours) {
        if (neighbour.intersects(screen.frame))
            addNeighbour(lines, along(neighbour, axis), along(neighbour, across), along(wanted, across));
    }
    addSameParts(lines, along(screen.visibleFrame, axis), along(screen.visibleFrame, across));
    addSameParts(lines, along(screen.frame, axis), along(screen.frame, across));
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

/// The lines that a widget at `placed` lies on. Its edges say enough where its centre lies on one too.
QList<Line> linesAt(const Span& placed, QList<Line> lines)
{
    lines.removeIf([&](const Line& line) { return std::abs(line.at - partOf(placed, line.part)) >= sameLine; });
    const auto isMiddle = [](const Line& line) { return line.part == Part::middle; };
    if (!std::ranges::all_of(lines, isMiddle))
        lines.removeIf(isMiddle);
    return lines;
}

QRectF guideArea(double start, const Span& across, Qt::Orientation axis)
{
    const double length = across.high - across.low;
    if (axis == Qt::Horizontal)
        return {start, across.low, AlignmentHelp::thickness, length};
    return {across.low, start, length, AlignmentHelp::thickness};
}

/// One guide for each line, from the dragged widget to everything else on that line. It begins with the pixel before
/// its line, and does not leave the screen.
void addGuides(
    QList<QRectF>& guides, const QRectF& placed, const QList<Line>& lines, const QRectF& screen, Qt::Orientation axis)
{
    std::map<double, Span> spans;
    const Span own = along(placed, other(axis));
    for (const Line& line : linesAt(along(placed, axis), lines)) {
        Span& span = spans.try_emplace(std::floor(line.guide) - 1, own).first->second;
        span = {std::min(span.low, line.across.low), std::max(span.high, line.across.high)};
    }
    const Span whole = along(screen, other(axis));
    for (const auto& [start, span] : spans) {
        const Span cut{std::max(span.low - overshoot, whole.low), std::min(span.high + overshoot, whole.high)};
        guides.append(ScreenPlacement::movedInto(guideArea(start, cut, axis), screen));
    }
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
    addGuides(result.guides, placed, columns, screen->frame, Qt::Horizontal);
    addGuides(result.guides, placed, rows, screen->frame, Qt::Vertical);
    return result;
}

} // namespace ambrelle
