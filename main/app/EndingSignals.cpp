// SPDX-License-Identifier: MIT

#include "app/EndingSignals.h"

#include "app/EndingDeadline.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {

namespace {

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> thePipe{-1, -1};

// A signal handler may do hardly anything; writing into a pipe it may. The time runs from here, since the loop that is
// to hear of it may be what hangs.
void handle(int)
{
    const int error = errno;
    EndingDeadline::start();
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(thePipe[1], &byte, 1);
    errno = error;
}

sigset_t endingSet()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : endingSignals)
        sigaddset(&set, number);
    return set;
}

} // namespace

EndingSignals::EndingSignals()
{
    if (::pipe2(thePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(thePipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (::read(thePipe[0], bytes.data(), bytes.size()) > 0) { }
        Q_EMIT received();
    });
    for (const int number : endingSignals)
        std::signal(number, handle);
}

EndingSignals::~EndingSignals()
{
    for (const int number : endingSignals)
        std::signal(number, SIG_DFL);
    m_notifier.reset();
    for (int& end : thePipe) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

void HeldEndingSignals::hold()
{
    if (std::exchange(m_isHolding, true))
        return;
    const sigset_t held = endingSet();
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

bool HeldEndingSignals::take() const
{
    const sigset_t held = endingSet();
    const timespec now{};
    return sigtimedwait(&held, nullptr, &now) > 0;
}

void HeldEndingSignals::release()
{
    if (std::exchange(m_isHolding, false))
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace ambrelle
