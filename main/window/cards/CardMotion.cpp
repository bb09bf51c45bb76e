// SPDX-License-Identifier: MIT

#include "window/cards/CardMotion.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

CardMotion::CardMotion(int hoverTime, int arrivalTime)
    : m_hoverTime(hoverTime)
    , m_arrivalTime(arrivalTime)
{
}

void CardMotion::setTimes(int hoverTime, int arrivalTime)
{
    m_hoverTime = hoverTime;
    m_arrivalTime = arrivalTime;
}

void CardMotion::hover(const QModelIndex& index, qint64 now)
{
    if (m_hovered == index)
        return;
    const auto aim = [&](const QModelIndex& card, double to) {
        if (!card.isValid())
            return;
        const auto known =
            std::find_if(m_hovers.begin(), m_hovers.end(), [&](const auto& f) { return f.index == card; });
        const double value = hovering(card);
        const Fade fade{card, now, value, to, value};
        if (known == m_hovers.end())
            m_hovers.append(fade);
        else
            *known = fade;
    };
    const QModelIndex left = m_hovered;
    aim(left, 0);
    aim(index, 1); // from where it is, so it must not count as hovered yet
    m_hovered = index;
}

void CardMotion::await(const QModelIndex& index)
{
    if (!m_awaiting.contains(index))
        m_awaiting.append(index);
}

void CardMotion::arrive(const QModelIndex& index, qint64 now)
{
    if (m_awaiting.removeAll(index) > 0 && m_arrivalTime > 0)
        m_arrivals.append({index, now, 0, 1, 0});
}

double CardMotion::hovering(const QModelIndex& index) const
{
    for (const Fade& fade : m_hovers) {
        if (fade.index == index)
            return fade.value;
    }
    return index.isValid() && m_hovered == index ? 1 : 0;
}

double CardMotion::arrived(const QModelIndex& index) const
{
    for (const Fade& fade : m_arrivals) {
        if (fade.index == index)
            return fade.value;
    }
    return 1;
}

void CardMotion::step(Fade& fade, int time, qint64 now)
{
    const double t = time <= 0 ? 1 : std::clamp(static_cast<double>(now - fade.start) / time, 0.0, 1.0);
    fade.value = fade.from + (fade.to - fade.from) * (1 - std::pow(1 - t, 3));
    fade.isOver = t >= 1 || !fade.index.isValid();
}

QList<QModelIndex> CardMotion::advance(qint64 now)
{
    QList<QModelIndex> changed;
    const auto advanced = [&](QList<Fade>& fades, int time) {
        for (Fade& fade : fades) {
            if (fade.index.isValid() && !changed.contains(fade.index))
                changed.append(fade.index);
            step(fade, time, now);
        }
        fades.removeIf([](const Fade& fade) { return fade.isOver; });
    };
    advanced(m_hovers, m_hoverTime);
    advanced(m_arrivals, m_arrivalTime);
    m_awaiting.removeIf([](const QPersistentModelIndex& index) { return !index.isValid(); });
    return changed;
}

bool CardMotion::isMoving() const
{
    return !m_hovers.isEmpty() || !m_arrivals.isEmpty();
}

void CardMotion::clear()
{
    m_hovered = QModelIndex();
    m_hovers.clear();
    m_arrivals.clear();
    m_awaiting.clear();
}

} // namespace ambrelle
