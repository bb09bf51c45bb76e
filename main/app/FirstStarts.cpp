// SPDX-License-Identifier: MIT

#include "app/FirstStarts.h"

#include "app/Information.h"
#include "foundation/Clock.h"
#include "foundation/UserDefaults.h"
#include "platform/linux/update/ProbationGuard.h"

namespace ambrelle {

using namespace Qt::StringLiterals;
using What = Probation::Found::What;

namespace {

const QString rejectedKey = u"rejectedUpdate"_s;

} // namespace

FirstStarts::FirstStarts(QString program, char** arguments)
    : m_program(std::move(program))
    , m_version(Information::read().version)
    , m_found(Probation::begin(m_program, m_version, arguments))
{
}

FirstStarts::~FirstStarts()
{
    end(false);
}

QString FirstStarts::rejectedVersion(UserDefaults& defaults) const
{
    isTold(defaults);
    return defaults.string(rejectedKey).value_or(QString());
}

void FirstStarts::proceed(Clock& clock, UserDefaults& defaults)
{
    if (m_found.what == What::nothing)
        return;
    m_worker = std::make_unique<SerialWorker>(*this);
    if (m_found.what != What::newcomer) {
        settle(clock, defaults);
        return;
    }
    m_next = clock.after(probationTime, [this, &clock, &defaults] {
        if (defaults.string(rejectedKey) == m_version)
            defaults.remove(rejectedKey); // somebody put it here again, and now it works
        settle(clock, defaults);
    });
}

/// Whether the settings know of a rejection: until then the journal has to stay.
bool FirstStarts::isTold(UserDefaults& defaults) const
{
    return m_found.what != What::rejection || defaults.set(rejectedKey, m_found.version);
}

void FirstStarts::settle(Clock& clock, UserDefaults& defaults)
{
    m_next = clock.after(retryTime, [this, &clock, &defaults] { settle(clock, defaults); });
    if (!isTold(defaults))
        return;
    m_worker->run([program = m_program, version = m_version] { return Probation::settle(program, version); },
        [this](bool isSettled) {
            ProbationGuard::dismiss(); // it has stood for long enough, whatever the disk says
            if (isSettled) {
                m_found = {};
                m_next.reset();
            }
        });
}

void FirstStarts::end(bool isAsked)
{
    m_next.reset();
    if (isAsked && m_found.what == What::newcomer)
        Probation::confirm(m_program, m_version);
    m_found = {};
    ProbationGuard::dismiss();
    m_worker.reset();
}

} // namespace ambrelle
