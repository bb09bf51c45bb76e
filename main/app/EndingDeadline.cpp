// SPDX-License-Identifier: MIT

#include "app/EndingDeadline.h"

#include "app/Relaunch.h"
#include "foundation/SerialWorker.h"
#include "foundation/SettingsFile.h"
#include "platform/linux/update/ProbationGuard.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <ctime>

#include <unistd.h>

namespace ambrelle {

namespace {

// The settings are flushed last, when the rest has taken its share.
constexpr std::chrono::milliseconds shareOfWork{400};
static_assert(shareOfWork + SettingsFile::lastPatience < EndingDeadline::patience);

timer_t theTimer{};
std::atomic<bool> isReady = false;
std::atomic<bool> isStarted = false;

void endNow(int)
{
    Relaunch::carryOutAtOnce();
    ::_exit(EXIT_SUCCESS);
}

} // namespace

void EndingDeadline::prepare()
{
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM;
    std::signal(SIGALRM, endNow);
    isReady = ::timer_create(CLOCK_MONOTONIC, &event, &theTimer) == 0;
}

void EndingDeadline::start()
{
    if (isStarted.exchange(true))
        return;
    ProbationGuard::dismiss();
    SerialWorker::limitPatience(shareOfWork);
    if (!isReady)
        return;
    itimerspec limit{};
    limit.it_value.tv_sec = patience / std::chrono::seconds(1);
    limit.it_value.tv_nsec = std::chrono::nanoseconds(patience % std::chrono::seconds(1)).count();
    ::timer_settime(theTimer, 0, &limit, nullptr);
}

} // namespace ambrelle
