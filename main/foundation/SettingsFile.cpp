// SPDX-License-Identifier: MIT

#include "foundation/SettingsFile.h"

#include "foundation/SettingsJournal.h"
#include "foundation/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <optional>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Moment = std::chrono::steady_clock::time_point;

constexpr qint64 greatestSize = 64 * 1024 * 1024;
constexpr int longestChain = 40; // of links, as in the kernel
constexpr auto untilNextTry = 10s;
constexpr qsizetype editions = 64;

void complain(const QString& sentence)
{
    std::fprintf(stderr, "ambrelle: %s\n", qUtf8Printable(sentence));
}

/// The file that is written in place of `path`: a link to it stays a link.
QString targetOf(const QString& path)
{
    if (QFileInfo::exists(path))
        return QFileInfo(path).canonicalFilePath();
    QString target = path;
    for (int i = 0; i < longestChain; ++i) {
        const QFileInfo file(target);
        if (!file.isSymLink())
            return target;
        target = file.symLinkTarget();
    }
    return path; // links in a circle lead nowhere
}

/// Blanks at the end tell a file from earlier ones of the same values. What follows one of those, and what a power cut
/// may have left beside the file though it was removed, is thus not taken for newer than this one.
qsizetype editionOf(const QByteArray& file)
{
    return file.size() - (file.lastIndexOf('\n') + 1);
}

/// The object in the file, or why there is none.
struct FileContents {
    std::optional<QJsonObject> values;
    QByteArray hash = SettingsJournal::noFile;
    qsizetype edition = 0;
    QString fault{};
};

FileContents readObject(const QString& path)
{
    FileContents contents;
    const auto failed = [&contents](const QString& fault) {
        contents.fault = fault;
        return contents;
    };
    // Opening anything but a plain file could wait for ever.
    if (!QFileInfo(path).isFile())
        return failed(u"it is not a file"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(file.errorString());
    if (file.size() > greatestSize)
        return failed(u"it is too large"_s);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failed(file.errorString());
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return failed(error.errorString());
    if (!document.isObject())
        return failed(u"it holds no object"_s);
    contents.values = document.object();
    contents.hash = SettingsJournal::hash(bytes);
    contents.edition = editionOf(bytes);
    return contents;
}

// "defaults.json.damaged", else the first free of "….damaged-2", "-3" and so on.
QString freeName(const QString& path)
{
    const QString first = path + u".damaged"_s;
    QString name = first;
    const auto taken = [&name] {
        std::error_code none;
        const auto status = std::filesystem::symlink_status(QFile::encodeName(name).toStdString(), none);
        return status.type() != std::filesystem::file_type::not_found;
    };
    for (int i = 2; taken(); ++i)
        name = first + u"-%1"_s.arg(i);
    return name;
}

void moveAside(const QString& path, const QString& fault, const QString& instead)
{
    const QString kept = freeName(path);
    const bool moved = std::rename(QFile::encodeName(path).constData(), QFile::encodeName(kept).constData()) == 0;
    complain(u"The settings in %1 cannot be read (%2). "_s.arg(path, fault)
        + (moved ? u"They are kept as %1; %2."_s.arg(kept, instead) : u"They stay where they are; %1."_s.arg(instead)));
}

} // namespace

struct SettingsFile::State {
    State(const QString& file, std::chrono::milliseconds gatheredFor)
        : path(targetOf(file))
        , gather(gatheredFor)
        , standing(standingFolder(path))
        , journal(path)
    {
    }

    void work();
    bool flushNewest(std::unique_lock<std::mutex>& lock);
    void refused(const QString& reason);

    const QString path;
    const std::chrono::milliseconds gather;
    QString standing; // the folder above which none was made since the last flush; the worker's, as the next
    qsizetype edition = 0; // of the file

    std::mutex mutex; // for all that follows
    std::condition_variable wake; // the worker has something to do
    std::condition_variable settled; // the worker has done something
    SettingsJournal journal;
    QJsonObject newest;
    quint64 version = 0; // of `newest`
    quint64 flushed = 0; // the version that is in the file
    int refusals = 0; // of flushes
    SettingsJournal::Predecessors fileHashes{SettingsJournal::noFile, SettingsJournal::noFile}; // now, and soon
    Moment due = Moment::max(); // the next flush
    bool ending = false;
    bool ended = false;
    bool complained = false;
};

SettingsFile::SettingsFile(const QString& path, std::chrono::milliseconds gather)
    : m_state(std::make_shared<State>(path, gather))
{
    State& state = *m_state;
    std::optional<SettingsJournal::Version> unflushed = state.journal.newest();
    FileContents contents;
    if (QFileInfo::exists(state.path))
        contents = readObject(state.path);
    state.fileHashes = {contents.hash, contents.hash};
    state.edition = contents.edition;
    // Who edited or replaced the file since then means what it says now.
    const bool damaged = !contents.fault.isEmpty();
    if (unflushed && !damaged && !std::ranges::count(unflushed->follows, contents.hash))
        unflushed.reset();
    if (damaged)
        moveAside(state.path, contents.fault, unflushed ? u"the newest version applies"_s : u"the defaults apply"_s);
    if (!unflushed) {
        m_loaded = contents.values.value_or(QJsonObject());
        return;
    }
    m_loaded = state.newest = unflushed->values;
    state.version = 1;
    state.due = std::chrono::steady_clock::now() + gather;
    startWorker();
}

SettingsFile::~SettingsFile()
{
    if (!m_worker.joinable())
        return;
    std::unique_lock lock(m_state->mutex);
    m_state->ending = true;
    m_state->wake.notify_one();
    const bool ended = m_state->settled.wait_for(lock, lastPatience, [this] { return m_state->ended; });
    lock.unlock();
    if (ended)
        m_worker.join();
    else
        m_worker.detach();
}

void SettingsFile::startWorker()
{
    m_worker = std::thread([state = m_state] { state->work(); });
}

bool SettingsFile::store(const QJsonObject& values)
{
    State& state = *m_state;
    const std::lock_guard lock(state.mutex);
    state.newest = values;
    ++state.version;
    state.due = std::min(state.due, std::chrono::steady_clock::now() + state.gather);
    const QString reason = state.journal.write(values, state.fileHashes);
    if (!reason.isEmpty())
        state.refused(reason);
    if (!m_worker.joinable())
        startWorker();
    state.wake.notify_one();
    return reason.isEmpty();
}

bool SettingsFile::flush(std::chrono::milliseconds patience)
{
    State& state = *m_state;
    std::unique_lock lock(state.mutex);
    if (state.flushed == state.version)
        return true;
    state.due = Moment::min();
    state.wake.notify_one();
    const int refusals = state.refusals;
    state.settled.wait_for(
        lock, patience, [&] { return state.flushed == state.version || state.refusals != refusals; });
    return state.flushed == state.version;
}

void SettingsFile::State::work()
{
    std::unique_lock lock(mutex);
    while (flushed != version || !ending) {
        if (flushed == version)
            wake.wait(lock);
        else if (!ending && due > std::chrono::steady_clock::now())
            wake.wait_until(lock, due);
        else if (!flushNewest(lock) && ending)
            break;
    }
    ended = true;
    settled.notify_all();
}

/// Without the lock while it waits for the disk.
bool SettingsFile::State::flushNewest(std::unique_lock<std::mutex>& lock)
{
    const quint64 taken = version;
    edition = (edition + 1) % editions;
    const QByteArray bytes = QJsonDocument(newest).toJson(QJsonDocument::Indented) + QByteArray(edition, ' ');
    fileHashes[1] = SettingsJournal::hash(bytes);
    due = Moment::max();
    lock.unlock();
    const QString reason = writeWhole(path, bytes, Readers::owner);
    if (reason.isEmpty()) { // the folders were made for the journal
        flushMadeFolders(path, standing);
        standing = standingFolder(path);
    }
    lock.lock();
    if (reason.isEmpty()) {
        flushed = taken;
        fileHashes[0] = fileHashes[1];
        complained = false;
        if (flushed == version)
            journal.remove();
    } else {
        ++refusals;
        due = std::min(due, std::chrono::steady_clock::now() + untilNextTry);
        refused(reason);
    }
    settled.notify_all();
    return reason.isEmpty();
}

void SettingsFile::State::refused(const QString& reason)
{
    if (!std::exchange(complained, true))
        complain(u"Settings cannot be saved in %1 (%2)."_s.arg(path, reason));
}

} // namespace ambrelle
