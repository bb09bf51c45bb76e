// SPDX-License-Identifier: MIT

#include "skins/quest/QuestTrail.h"

#include <array>
#include <cmath>
#include <deque>

namespace ambrelle::quest {

namespace {

constexpr std::array<QPoint, 4> steps{QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)};

constexpr double longWay = 1.5; // in parts of that from middle to middle

} // namespace

QuestTrail::QuestTrail(const SceneLayout& layout, double pitch, double half)
    : m_pitch(pitch)
    , m_half(half)
    , m_columns(static_cast<int>(layout.screen().width() / pitch))
    , m_rows(static_cast<int>(layout.screen().height() / pitch))
    , m_ground(static_cast<qsizetype>(m_columns) * m_rows, Ground::open)
{
    for (const SceneItem& item : layout.items())
        block(item.frame);
}

QRect QuestTrail::cells(const QRectF& frame, double reach) const
{
    const auto first = [&](double edge) { return static_cast<int>(std::ceil((edge - reach) / m_pitch - 0.5)); };
    const auto last = [&](double edge) { return static_cast<int>(std::floor((edge + reach) / m_pitch - 0.5)); };
    return QRect(QPoint(first(frame.left()), first(frame.top())), QPoint(last(frame.right()), last(frame.bottom())))
        & QRect(0, 0, m_columns, m_rows);
}

void QuestTrail::block(const QRectF& area)
{
    const QRect taken = cells(area, m_half);
    for (int y = taken.top(); y <= taken.bottom(); ++y)
        for (int x = taken.left(); x <= taken.right(); ++x)
            m_ground[indexOf({x, y})] = Ground::blocked;
}

QList<QPoint> QuestTrail::link(const QRectF& from, const QRectF& to)
{
    const QRect target = cells(to, m_half + m_pitch);
    const QRect start = cells(from, m_half + m_pitch);
    const double apart = (to.center() - from.center()).manhattanLength();
    QList<int> cameBy(m_ground.size(), -1); // steps' indices; those of the start have one more
    std::deque<QPoint> waiting;
    for (int y = start.top(); y <= start.bottom(); ++y) {
        for (int x = start.left(); x <= start.right(); ++x) {
            if (m_ground[indexOf({x, y})] == Ground::blocked)
                continue;
            cameBy[indexOf({x, y})] = static_cast<int>(steps.size());
            waiting.emplace_back(x, y);
        }
    }
    // What is trodden costs nothing: it is looked at before all that costs a step.
    while (!waiting.empty()) {
        QPoint cell = waiting.front();
        waiting.pop_front();
        if (target.contains(cell)) {
            QList<QPoint> way{cell};
            for (int step = cameBy[indexOf(cell)]; step < static_cast<int>(steps.size());
                 step = cameBy[indexOf(cell)]) {
                cell -= steps.at(static_cast<std::size_t>(step));
                way.prepend(cell);
            }
            if (static_cast<double>(way.size()) > longWay * apart / m_pitch)
                return {};
            for (const QPoint& each : std::as_const(way))
                m_ground[indexOf(each)] = Ground::trodden;
            return way;
        }
        for (std::size_t step = 0; step < steps.size(); ++step) {
            const QPoint next = cell + steps.at(step);
            if (!QRect(0, 0, m_columns, m_rows).contains(next) || cameBy[indexOf(next)] >= 0
                || m_ground[indexOf(next)] == Ground::blocked)
                continue;
            cameBy[indexOf(next)] = static_cast<int>(step);
            if (m_ground[indexOf(next)] == Ground::trodden)
                waiting.push_front(next);
            else
                waiting.push_back(next);
        }
    }
    return {};
}

} // namespace ambrelle::quest
