// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ReleaseServer.h"

#include <QStringList>

#include <condition_variable>
#include <mutex>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A server that gives what a test lays down, at once or when the test lets it. What is laid down must not change while
/// somebody is asking.
class RecordingReleaseServer final : public ReleaseServer {
public:
    FeedAnswer feed(const QUrl& url, const std::stop_token& stop) override
    {
        note(url);
        return waits(stop) ? answer : FeedAnswer();
    }
    std::optional<FetchedArchive> fetch(const QUrl& url, int, const std::stop_token& stop) override
    {
        note(url);
        return waits(stop) ? archive : std::nullopt;
    }

    /// From now on nobody is answered until release().
    void hold()
    {
        const std::lock_guard lock(m_mutex);
        m_held = true;
    }
    void release()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_held = false;
        }
        m_released.notify_all();
    }
    /// The feed tells of that version.
    void offer(const QString& version, const QString& url = u"https://updates.example/Ambrelle.zip"_s)
    {
        answer = {true, 200,
            u"{\"version\": \"%1\", \"url\": \"%2\", \"sha256\": \"%3\"}"_s.arg(version, url, sha256).toUtf8()};
    }
    QStringList asked() const ///< addresses, in order
    {
        const std::lock_guard lock(m_mutex);
        return m_asked;
    }

    FeedAnswer answer;
    QString sha256 = u"ABC123"_s; ///< as the feed has it
    std::optional<FetchedArchive> archive = FetchedArchive{u"abc123"_s, "signature"};

private:
    void note(const QUrl& url)
    {
        const std::lock_guard lock(m_mutex);
        m_asked.append(url.toString());
    }
    bool waits(const std::stop_token& stop)
    {
        std::unique_lock lock(m_mutex);
        return m_released.wait(lock, stop, [this] { return !m_held; });
    }

    mutable std::mutex m_mutex;
    std::condition_variable_any m_released;
    bool m_held = false;
    QStringList m_asked;
};

} // namespace ambrelle
