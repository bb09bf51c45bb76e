// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

#include <chrono>
#include <memory>
#include <thread>

namespace ambrelle {

/// The file behind the settings. What store() was given outlives the process, however that ends, once the call returns;
/// a power cut while it runs takes at most the last second; and no caller waits for the disk to flush but the one who
/// destroys it, `lastPatience` at most.
///
/// A version is first written beside the file without being flushed (SettingsJournal). A thread of its own gathers
/// versions for a moment, flushes the newest, puts it in the file's place and removes the other: the file itself is
/// always whole and on the disk, and a gesture of a hundred steps costs a few flushes. What the disk refuses is tried
/// again every ten seconds.
class SettingsFile {
public:
    /// Of the first unflushed version; two flushes come on top of it, or four while one is under way.
    static constexpr std::chrono::milliseconds gatherTime{400};
    /// Of who destroys it. What the disk has not taken by then is found beside the file by the next start.
    static constexpr std::chrono::milliseconds lastPatience{1000};

    /// Reads the file at `path`, or the newer version beside it; a link stays a link, and what it points to is made
    /// when missing. A damaged file is moved aside under another name with a sentence on standard error.
    explicit SettingsFile(const QString& path, std::chrono::milliseconds gather = gatherTime);
    ~SettingsFile(); ///< flushes, if the disk is fast enough
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    /// What was stored when the program started; empty when nothing was.
    const QJsonObject& loaded() const { return m_loaded; }
    /// False when the disk refuses; a sentence then goes to standard error, once until it does not refuse any more.
    bool store(const QJsonObject& values);
    /// Waits until everything stored is on the disk; false when it is not after that time, or the disk refuses.
    bool flush(std::chrono::milliseconds patience);

private:
    struct State;
    void startWorker();

    std::shared_ptr<State> m_state; // also the worker's, which may outlive this when the disk hangs
    QJsonObject m_loaded;
    std::thread m_worker;
};

} // namespace ambrelle
