// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QString>

namespace ambrelle {

/// One line on standard error that is written over and over, where a person looks at it: how much is done, what is
/// being made, and how long it still takes.
class BatchProgress {
public:
    /// `count`: of the pieces to be made.
    explicit BatchProgress(qsizetype count);
    ~BatchProgress();
    Q_DISABLE_COPY_MOVE(BatchProgress)

    void begin(const QString& name); ///< the next piece
    void clear(); ///< before something else is written; show() and begin() show the line again
    void show(); ///< nothing before the first piece

    /// "[####······] 12/30 Paper, 8 s left" of at most `width` letters; the time is left out before the first piece is
    /// done. `elapsed` in milliseconds, `done` without the piece that is being made.
    static QString line(qsizetype done, qsizetype count, const QString& name, qint64 elapsed, int width);

private:
    bool m_isSeen;
    bool m_isShown = false;
    qsizetype m_count;
    qsizetype m_begun = 0;
    qsizetype m_done = 0;
    QString m_name; ///< of the piece that is being made
    QElapsedTimer m_timer;
};

} // namespace ambrelle
