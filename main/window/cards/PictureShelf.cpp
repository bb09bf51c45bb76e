// SPDX-License-Identifier: MIT

#include "window/cards/PictureShelf.h"

#include <algorithm>

namespace ambrelle {

namespace {

qint64 bytesOf(const QSize& pixels)
{
    return qint64{4} * pixels.width() * pixels.height();
}

} // namespace

PictureShelf::PictureShelf(PictureLoader& loader)
    : m_loader(loader)
    , m_self(std::make_shared<PictureShelf*>(this))
{
}

PictureShelf::~PictureShelf()
{
    *m_self = nullptr;
}

QPixmap PictureShelf::picture(const PictureKey& key, const QSize& pixels, double corner)
{
    const PictureOrder wanted{key, pixels, corner};
    if (const auto found = m_kept.find(wanted); found != m_kept.end()) {
        found->used = ++m_uses;
        return found->pixmap;
    }
    order(wanted);
    return {};
}

QPixmap PictureShelf::standIn(const PictureKey& key) const
{
    QPixmap largest;
    for (auto kept = m_kept.cbegin(); kept != m_kept.cend(); ++kept) {
        if (kept.key().key == key && kept->pixmap.width() > largest.width())
            largest = kept->pixmap;
    }
    return largest;
}

bool PictureShelf::hasFailed(const PictureKey& key) const
{
    return m_failed.contains(key) && standIn(key).isNull();
}

void PictureShelf::setWanted(const QObject& view, const QList<PictureOrder>& orders)
{
    if (!m_wanted.contains(&view)) {
        connect(&view, &QObject::destroyed, this, [this, gone = &view] {
            m_wanted.remove(gone);
            dropUnwanted();
            makeRoom();
        });
    }
    m_wanted[&view] = QSet<PictureOrder>(orders.begin(), orders.end());
    dropUnwanted();
    for (const PictureOrder& each : orders)
        order(each);
    makeRoom();
}

void PictureShelf::release()
{
    m_kept.clear();
    m_failed.clear();
    m_bytes = 0;
    m_wanted.removeIf([](const auto& entry) { return entry->isEmpty(); });
}

bool PictureShelf::isWanted(const PictureOrder& order) const
{
    return std::ranges::any_of(m_wanted, [&](const QSet<PictureOrder>& orders) { return orders.contains(order); });
}

void PictureShelf::order(const PictureOrder& order)
{
    if (order.pixels.isEmpty() || m_kept.contains(order) || m_ordered.contains(order)
        || m_failed.value(order.key).contains(order))
        return;
    m_ordered.insert(order);
    m_loader.load(order, [self = m_self, order](const QImage& image) {
        if (*self)
            (*self)->receive(order, image);
    });
}

void PictureShelf::dropUnwanted()
{
    m_ordered.removeIf([this](const PictureOrder& order) { return !isWanted(order) && m_loader.drop(order); });
}

void PictureShelf::receive(const PictureOrder& order, const QImage& image)
{
    m_ordered.remove(order);
    if (image.isNull()) {
        m_failed[order.key].insert(order);
    } else {
        m_kept.insert(order, {QPixmap::fromImage(image), ++m_uses});
        m_bytes += bytesOf(order.pixels);
        makeRoom();
    }
    Q_EMIT arrived(order.key);
}

// What is seen stays; of the rest what was painted longest ago goes first.
void PictureShelf::makeRoom()
{
    QSet<PictureOrder> seen; // or soon to be
    for (const QSet<PictureOrder>& orders : std::as_const(m_wanted))
        seen += orders;
    double seenBytes = 0;
    for (const PictureOrder& order : std::as_const(seen))
        seenBytes += static_cast<double>(bytesOf(order.pixels));
    const auto limit = std::max(leastLimit, static_cast<qint64>(roomier * seenBytes));
    if (m_bytes <= limit)
        return;
    QList<std::pair<quint64, PictureOrder>> others;
    for (auto kept = m_kept.cbegin(); kept != m_kept.cend(); ++kept) {
        if (!seen.contains(kept.key()))
            others.append({kept->used, kept.key()});
    }
    std::ranges::sort(others, {}, [](const auto& other) { return other.first; });
    for (const auto& [used, order] : others) {
        if (m_bytes <= limit)
            break;
        m_kept.remove(order);
        m_bytes -= bytesOf(order.pixels);
    }
}

} // namespace ambrelle
