// SPDX-License-Identifier: MIT

#pragma once

#include <QThreadPool>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace ambrelle {

/// Work that has to wait for something, done on a thread of its own, one piece after the other, while the owner's
/// thread goes on. Make it the owner's last member, so that it goes first: from then on no answer comes any more, and
/// what has not begun is dropped.
class SerialWorker {
public:
    static constexpr std::chrono::milliseconds usualPatience{200};
    static constexpr std::chrono::milliseconds endless{-1};

    /// At its end the worker waits at most `patience` for the piece that runs. One that takes longer, since a disk or a
    /// server does not answer, is left behind with its thread: such work must own all that it touches. Where it touches
    /// the owner, it has to end soon by itself, and the patience is endless.
    explicit SerialWorker(QObject& owner, std::chrono::milliseconds patience = usualPatience);
    ~SerialWorker();
    /// From now on the ends of all workers together wait at most that long, those that are endless excepted. None: as
    /// long as each likes. A signal handler may call it.
    static void limitPatience(std::optional<std::chrono::milliseconds> ofAll);

    SerialWorker(const SerialWorker&) = delete;
    SerialWorker& operator=(const SerialWorker&) = delete;

    /// `done` gets the result of `work`, later and on the owner's thread. `work` must not touch what that thread
    /// changes.
    template <typename Work, typename Done> void run(Work work, Done done)
    {
        m_pool->start([way = m_way, work = std::move(work), done = std::move(done)]() mutable {
            auto result = work();
            way->answer([done = std::move(done), result = std::move(result)] { done(result); });
        });
    }

private:
    /// The way back, which ends when the owner goes.
    struct Way {
        void answer(std::function<void()> answer);

        std::mutex mutex;
        QObject* owner = nullptr;
    };

    std::chrono::milliseconds m_patience;
    std::shared_ptr<Way> m_way;
    std::unique_ptr<QThreadPool> m_pool;
};

} // namespace ambrelle
