// SPDX-License-Identifier: MIT

#include "offline/BatchProgress.h"

#include <QTextStream>

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int barLetters = 20;
constexpr int usualWidth = 80;

int terminalWidth()
{
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usualWidth;
}

QString timeLeft(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 999) / 1000;
    return seconds < 60 ? u"%1 s"_s.arg(seconds) : u"%1 min %2 s"_s.arg(seconds / 60).arg(seconds % 60);
}

} // namespace

BatchProgress::BatchProgress(qsizetype count)
    : m_isSeen(isatty(STDERR_FILENO) == 1)
    , m_count(count)
{
    m_timer.start();
}

BatchProgress::~BatchProgress()
{
    clear();
}

void BatchProgress::begin(const QString& name)
{
    m_done = m_begun++;
    m_name = name;
    show();
}

void BatchProgress::show()
{
    if (!m_isSeen || m_name.isEmpty())
        return;
    // One letter less: in the last column some terminals go to the next line.
    QTextStream(stderr) << "\r\033[K" << line(m_done, m_count, m_name, m_timer.elapsed(), terminalWidth() - 1);
    m_isShown = true;
}

void BatchProgress::clear()
{
    if (std::exchange(m_isShown, false))
        QTextStream(stderr) << "\r\033[K";
}

QString BatchProgress::line(qsizetype done, qsizetype count, const QString& name, qint64 elapsed, int width)
{
    const auto filled = static_cast<int>(count > 0 ? barLetters * std::min(done, count) / count : 0);
    QString line = u"[%1%2] %3/%4 %5"_s.arg(QString(filled, u'#'), QString(barLetters - filled, u'·'))
                       .arg(std::min(done + 1, count))
                       .arg(count)
                       .arg(name);
    if (done > 0 && done < count)
        line += u", %1 left"_s.arg(timeLeft(elapsed * (count - done) / done));
    return line.left(std::max(width, 0));
}

} // namespace ambrelle
