// SPDX-License-Identifier: MIT

#include "services/PhotoAlbum.h"

#include "foundation/Clock.h"
#include "services/PhotoRotator.h"

namespace ambrelle {

PhotoAlbum::PhotoAlbum(Clock& clock, Choice choose)
    : m_clock(clock)
    , m_choose(std::move(choose))
{
}

PhotoAlbum::~PhotoAlbum() = default;

void PhotoAlbum::configure(const QUuid& id, const std::optional<QString>& folder, int intervalMinutes, QSize shown)
{
    if (m_rest)
        m_waiting[id] = [=, this] { rotator(id).configure(folder, intervalMinutes, shown); };
    else
        rotator(id).configure(folder, intervalMinutes, shown);
}

void PhotoAlbum::rest(std::chrono::milliseconds time)
{
    m_rest = m_clock.after(time, [this] { wake(); });
}

void PhotoAlbum::wake()
{
    m_rest.reset();
    for (const auto& [id, configure] : std::exchange(m_waiting, {}))
        configure();
}

void PhotoAlbum::keepOnly(const QList<QUuid>& ids)
{
    const auto isGone = [&ids](const auto& entry) { return !ids.contains(entry.first); };
    std::erase_if(m_rotators, isGone);
    std::erase_if(m_waiting, isGone);
}

void PhotoAlbum::loadPreview(const QUuid& id, const QImage& image)
{
    rotator(id).loadPreview(image);
}

QImage PhotoAlbum::image(const QUuid& id) const
{
    const PhotoRotator* found = find(id);
    return found ? found->image() : QImage();
}

QString PhotoAlbum::name(const QUuid& id) const
{
    const PhotoRotator* found = find(id);
    return found ? found->name() : QString();
}

bool PhotoAlbum::isEmpty(const QUuid& id) const
{
    const PhotoRotator* found = find(id);
    return found ? found->isEmpty() : !m_waiting.contains(id);
}

bool PhotoAlbum::isLoading(const QUuid& id) const
{
    const PhotoRotator* found = find(id);
    return m_waiting.contains(id) || (found && found->isLoading());
}

PhotoRotator& PhotoAlbum::rotator(const QUuid& id)
{
    std::unique_ptr<PhotoRotator>& entry = m_rotators[id];
    if (!entry) {
        entry = std::make_unique<PhotoRotator>(m_clock, m_worker, m_choose, m_sample);
        connect(entry.get(), &PhotoRotator::changed, this, [this, id] { Q_EMIT changed(id); });
    }
    return *entry;
}

const PhotoRotator* PhotoAlbum::find(const QUuid& id) const
{
    const auto found = m_rotators.find(id);
    return found == m_rotators.end() ? nullptr : found->second.get();
}

} // namespace ambrelle
