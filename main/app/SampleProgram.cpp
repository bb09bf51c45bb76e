// SPDX-License-Identifier: MIT

#include "app/SampleProgram.h"

#include "model/ThemeAccent.h"
#include "offline/SampleData.h"

namespace ambrelle {

SampleProgram::SampleProgram(std::unique_ptr<Machine> machine, const QImage& photo)
    : m_machine(std::move(machine))
    , m_delegate(*m_machine, {m_defaults, m_settings, ThemeAccent::shared()})
{
    SampleData::load(context().monitor, context().services, photo);
    context().model.setShowWelcome(false);
    context().model.setHasTray(true);
}

} // namespace ambrelle
