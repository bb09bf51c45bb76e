// SPDX-License-Identifier: MIT

#include "platform/wayland/window/LayerOrder.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

namespace ambrelle {

namespace {

bool areTogether(const LayerMember& one, const LayerMember& other)
{
    return one.layer() == other.layer() && one.screen() == other.screen();
}

} // namespace

QList<qsizetype> rejoining(const QList<qsizetype>& standing, Joining joining)
{
    // Who stands right already, from the end that nobody joins at, stays.
    QList<qsizetype> moving;
    if (joining != Joining::below) {
        qsizetype stay = 0;
        for (const qsizetype place : standing)
            stay += place == stay ? 1 : 0;
        for (qsizetype place = stay; place < standing.size(); ++place)
            moving.append(place);
    } else {
        qsizetype stay = standing.size();
        for (const qsizetype place : std::ranges::reverse_view(standing))
            stay -= place == stay - 1 ? 1 : 0;
        for (qsizetype place = stay - 1; place >= 0; --place)
            moving.append(place);
    }
    return moving;
}

LayerOrder::LayerOrder()
{
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, &m_soon, [this] { arrange(); });
}

void LayerOrder::setJoining(Joining joining)
{
    const Joining former = std::exchange(m_joining, joining);
    if ((former == Joining::below) == (joining == Joining::below))
        return;
    std::ranges::reverse(m_standing); // what was taken for above was below
    m_soon.start(0);
}

void LayerOrder::insert(QList<LayerMember*>& order, LayerMember& window, bool below) const
{
    order.removeOne(&window);
    order.insert(below ? 0 : order.size(), &window);
}

void LayerOrder::joined(LayerMember& window)
{
    insert(m_wanted, window, window.staysLow());
    insert(m_standing, window, m_joining == Joining::below);
    m_soon.start(0);
}

void LayerOrder::raise(LayerMember& window)
{
    if (window.staysLow() || !m_wanted.contains(&window))
        return;
    insert(m_wanted, window, false);
    m_soon.start(0);
}

void LayerOrder::left(LayerMember& window)
{
    m_wanted.removeOne(&window);
    m_standing.removeOne(&window);
}

void LayerOrder::arrange()
{
    QList<const LayerMember*> done;
    for (const LayerMember* window : QList(m_wanted)) {
        const auto isWith = [window](const LayerMember* other) { return areTogether(*other, *window); };
        if (std::ranges::none_of(done, isWith)) {
            arrangeLike(*window);
            done.append(window);
        }
    }
}

void LayerOrder::arrangeLike(const LayerMember& window)
{
    const auto isElsewhere = [&window](const LayerMember* other) { return !areTogether(*other, window); };
    QList<LayerMember*> wanted = m_wanted;
    QList<LayerMember*> standing = m_standing;
    wanted.removeIf(isElsewhere);
    standing.removeIf(isElsewhere);
    QList<qsizetype> places;
    std::ranges::transform(
        standing, std::back_inserter(places), [&wanted](LayerMember* each) { return wanted.indexOf(each); });
    for (const qsizetype place : rejoining(places, m_joining)) {
        if (!wanted[place]->joinAgain())
            break; // then the others follow
        insert(m_standing, *wanted[place], m_joining == Joining::below);
    }
}

} // namespace ambrelle
