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
    void clear(); ///< before something else is written; begin() shows the line again

    /// "[####······] 12/30 Paper, 8 s left" of at most `width` letters; the time is left out before the first piece is
    /// done. `elapsed` in milliseconds, `done` without the piece that is being made.
    static QString line(qsizetype done, qsizetype count, const QString& name, qint64 elapsed, int width);

private:
    bool m_isSeen;
    bool m_isShown = false;
    qsizetype m_count;
    qsizetype m_begun = 0;
    QElapsedTimer m_timer;
};

} // namespace ambrelle
