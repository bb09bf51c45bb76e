// SPDX-License-Identifier: MIT

#pragma once

#include "offline/BatchProgress.h"

#include <QByteArray>
#include <QDir>
#include <QFuture>
#include <QImage>
#include <QSet>
#include <QThreadPool>

#include <atomic>
#include <deque>
#include <functional>

namespace ambrelle {

/// The folder that a batch mode fills. Files are packed and written on other threads while the next ones are drawn, and
/// told on standard output in the order in which they were given: "wrote " and the path, or "failed to render " and the
/// name. A file is written whole or not at all. What went wrong beyond that is told in one sentence on standard error,
/// and from then on no file is begun any more; those that are written already are told still. One thread uses this.
class BatchOutput {
public:
    using Pack = std::function<QByteArray()>; ///< the contents of a file, on any thread; empty: it cannot be rendered

    /// `pieces`: what progress counts.
    BatchOutput(const QString& folder, qsizetype pieces);
    ~BatchOutput(); ///< waits for what is being written
    Q_DISABLE_COPY_MOVE(BatchOutput)

    /// Makes the folder when it is missing. False, after a sentence, where nothing can be written.
    bool open();
    /// The next piece of `pieces`, by the name that people read.
    void begin(const QString& piece) { m_progress.begin(piece); }
    /// Puts a file into the folder; `name` may have folders in front. Waits while many are on their way.
    void add(const QString& name, Pack pack);
    void add(const QString& name, const QByteArray& bytes);
    void fail(const QString& name); ///< that file is missing, and the run goes on
    void tell(const QString& line); ///< on standard output, after all files given so far
    void flush() { settle(0); } ///< waits until the files given so far are there
    const QSet<QString>& failures() const { return m_failures; } ///< names of what, told so far, was not rendered
    /// Says in a sentence why nothing can be made any more.
    void refuse(const QString& sentence);
    bool isStopped() const { return m_isStopped; } ///< something has gone wrong for good; finish() tells the status
    /// Waits until all files are there. Gives the exit status of the mode.
    int finish();

    static QByteArray png(const QImage& picture); ///< empty when it is null
    static QByteArray webp(const QImage& picture, int quality); ///< of 100, where it means without losses; likewise

private:
    enum class Fate { written, notRendered, notWritten, dropped };
    struct Result {
        Fate fate = Fate::written;
        QString reason; ///< why it was not written
    };
    struct Entry {
        QString path;
        QString line; ///< of what is told only
        QFuture<Result> result;
    };

    void settle(qsizetype most);
    void settleFirst();
    void print(const QString& line);

    QDir m_folder;
    bool m_isUnnamed; ///< which the folder takes for the current one
    BatchProgress m_progress;
    std::atomic<bool> m_isStopped = false;
    QThreadPool m_pool;
    std::deque<Entry> m_entries;
    QSet<QString> m_failures;
};

} // namespace ambrelle
