// SPDX-License-Identifier: MIT

#include "offline/SampleWorld.h"

#include "foundation/ManualClock.h"
#include "offline/SampleData.h"
#include "services/ServicePorts.h"

namespace ambrelle {

SampleWorld::SampleWorld(const MakeMachine& makeMachine, const QImage& photo)
    : m_machine(makeMachine(std::make_unique<ManualClock>(SampleData::moment())))
    , m_ports(m_machine->ports())
    , m_defaults(UserDefaults::temporary())
    , m_settings(m_defaults)
    , m_monitor(m_ports.sources, m_ports.clock)
    , m_services(servicePorts(m_ports), {}, m_settings, m_defaults, m_ports.clock)
    , m_feed({m_monitor, m_services, m_settings}, m_ports.clock)
{
    SampleData::load(m_monitor, m_services, photo);
}

SampleWorld::~SampleWorld() = default;

Reading SampleWorld::readingFor(const WidgetConfig& config, bool seconds) const
{
    WidgetConfig shown = config;
    if (shown.kind == WidgetKind::photo)
        shown.id = SampleData::widget(WidgetKind::photo).id; // the only one with a photo
    return m_feed.readingFor(shown, seconds);
}

} // namespace ambrelle
