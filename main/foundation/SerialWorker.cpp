// SPDX-License-Identifier: MIT

#include "foundation/SerialWorker.h"

#include <QMetaObject>
#include <QObject>

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
    if (!m_pool->waitForDone(static_cast<int>(m_patience.count())))
        leave(std::move(m_pool));
}

void SerialWorker::Way::answer(std::function<void()> answer)
{
    const std::lock_guard lock(mutex);
    if (owner)
        QMetaObject::invokeMethod(owner, std::move(answer), Qt::QueuedConnection);
}

} // namespace ambrelle
