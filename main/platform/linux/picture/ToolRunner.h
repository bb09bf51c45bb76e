// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QWaitCondition>

#include <atomic>
#include <chrono>
#include <functional>

namespace ambrelle {

struct ToolAnswer {
    QByteArray output;
    QString error; ///< one sentence; empty when the tool ended well

    bool failed() const { return !error.isEmpty(); }
};

/// Runs the command line tools of a desktop, without a shell, one piece of work after the other. As with SerialWorker,
/// make it the owner's last member: a tool that still runs when the owner goes is stopped.
class ToolRunner {
public:
    static constexpr std::chrono::milliseconds usualPatience{5000};

    /// A tool that takes longer than `patience` is stopped and counts as failed.
    ToolRunner(QObject& owner, std::chrono::milliseconds patience);
    ~ToolRunner();

    /// Why the tool cannot be run, as a sentence; empty when it is installed.
    static QString whyMissing(const QString& program);

    std::chrono::milliseconds patience() const { return m_patience; }
    template <typename Work, typename Done> void run(Work work, Done done)
    {
        m_worker.run(std::move(work), std::move(done));
    }
    /// Runs a tool to its end; only as part of the work. Its language is English and its encoding UTF-8.
    ToolAnswer call(const QString& program, const QStringList& arguments) const;
    /// Looks again and again, at most for `longest`, whether `holds`; only as part of the work. Gives the last answer.
    bool await(const std::function<bool()>& holds, std::chrono::milliseconds longest) const;

private:
    std::chrono::milliseconds m_patience;
    std::atomic<bool> m_leaving = false;
    mutable QMutex m_mutex;
    mutable QWaitCondition m_left; ///< wakes work that waits when the owner goes
    SerialWorker m_worker;
};

} // namespace ambrelle
