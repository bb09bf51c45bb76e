// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaObject>
#include <QObject>
#include <QThreadPool>

#include <utility>

namespace ambrelle {

/// Work that has to wait for something, done on a thread of its own, one piece after the other, while the owner's
/// thread goes on. Make it the owner's last member, so that it goes first: it then waits for the piece that runs and
/// drops the others, and no answer comes any more.
class SerialWorker {
public:
    explicit SerialWorker(QObject& owner)
        : m_owner(owner)
    {
        m_pool.setMaxThreadCount(1);
    }
    ~SerialWorker()
    {
        m_pool.clear();
        m_pool.waitForDone();
    }
    SerialWorker(const SerialWorker&) = delete;
    SerialWorker& operator=(const SerialWorker&) = delete;

    /// `done` gets the result of `work`, later and on the owner's thread. `work` must not touch what that thread
    /// changes.
    template <typename Work, typename Done> void run(Work work, Done done)
    {
        m_pool.start([owner = &m_owner, work = std::move(work), done = std::move(done)]() mutable {
            auto result = work();
            QMetaObject::invokeMethod(
                owner, [done = std::move(done), result = std::move(result)] { done(result); }, Qt::QueuedConnection);
        });
    }

private:
    QObject& m_owner;
    QThreadPool m_pool;
};

} // namespace ambrelle
