// SPDX-License-Identifier: MIT

#include "foundation/SerialWorker.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QObject>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <limits>
#include <vector>

namespace ambrelle {

namespace {

constexpr int threadExpiry = 1000; // milliseconds without work

/// Keeps a pool whose thread hangs for as long as the process lives. Leak checkers find it here.
void leave(std::unique_ptr<QThreadPool> pool)
{
    static std::mutex mutex;
    static auto* left = new std::vector<std::unique_ptr<QThreadPool>>;
    const std::lock_guard lock(mutex);
    left->push_back(std::move(pool));
}

constexpr auto noLimit = std::numeric_limits<std::int64_t>::max();
std::atomic<std::int64_t> patienceLeft = noLimit; // milliseconds for the ends of all workers

bool isDoneWithin(QThreadPool& pool, std::chrono::milliseconds patience)
{
    if (patience < std::chrono::milliseconds(0))
        return pool.waitForDone(-1);
    const std::int64_t left = patienceLeft;
    QElapsedTimer timer;
    timer.start();
    const bool isDone = pool.waitForDone(static_cast<int>(std::min<std::int64_t>(patience.count(), left)));
    if (left != noLimit)
        patienceLeft = std::max<std::int64_t>(0, left - timer.elapsed());
    return isDone;
}

} // namespace

SerialWorker::SerialWorker(QObject& owner, std::chrono::milliseconds patience)
    : m_patience(patience)
    , m_way(std::make_shared<Way>())
    , m_pool(std::make_unique<QThreadPool>())
{
    m_way->owner = &owner;
    m_pool->setMaxThreadCount(1);
    m_pool->setExpiryTimeout(threadExpiry);
}

SerialWorker::~SerialWorker()
{
    {
        const std::lock_guard lock(m_way->mutex);
        m_way->owner = nullptr;
    }
    m_pool->clear();
    // The end of a pool would wait without limit.
    if (!isDoneWithin(*m_pool, m_patience))
        leave(std::move(m_pool));
}

void SerialWorker::limitPatience(std::optional<std::chrono::milliseconds> ofAll)
{
    patienceLeft = ofAll ? ofAll->count() : noLimit;
}

void SerialWorker::Way::answer(std::function<void()> answer)
{
    const std::lock_guard lock(mutex);
    if (owner)
        QMetaObject::invokeMethod(owner, std::move(answer), Qt::QueuedConnection);
}

} // namespace ambrelle
