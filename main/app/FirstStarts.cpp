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
    end();
}

QString FirstStarts::rejectedVersion(UserDefaults& defaults) const
{
    if (m_found.what == What::rejection)
        defaults.set(rejectedKey, m_found.version);
    return defaults.string(rejectedKey).value_or(QString());
}

void FirstStarts::proceed(Clock& clock, UserDefaults& defaults)
{
    if (m_found.what == What::nothing)
        return;
    m_worker = std::make_unique<SerialWorker>(*this);
    if (m_found.what != What::newcomer) {
        settle();
        return;
    }
    m_confirmation = clock.after(probationTime, [this, &defaults] {
        if (defaults.string(rejectedKey) == m_version)
            defaults.remove(rejectedKey); // somebody put it here again, and now it works
        settle();
    });
}

void FirstStarts::settle()
{
    m_found = {};
    m_worker->run(
        [program = m_program, version = m_version] {
            Probation::settle(program, version);
            return true;
        },
        [](bool) { ProbationGuard::dismiss(); });
}

void FirstStarts::end()
{
    if (m_found.what == What::newcomer)
        Probation::confirm(m_program, m_version);
    m_found = {};
    ProbationGuard::dismiss();
    m_worker.reset();
}

} // namespace ambrelle
