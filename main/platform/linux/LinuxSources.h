#pragma once

#include "platform/linux/LinuxMemorySource.h"
#include "platform/linux/LinuxNetworkSource.h"
#include "platform/linux/LinuxPowerSource.h"
#include "platform/linux/LinuxProcessorSource.h"
#include "platform/linux/LinuxProcessSource.h"
#include "platform/linux/LinuxVolumeSource.h"

namespace ambrelle {

/// Everything a system monitor reads, as the Linux kernel tells it.
class LinuxSources {
public:
    SystemSources sources() { return {m_processor, m_memory, m_volumes, m_power, m_network, m_processes}; }

private:
    LinuxProcessorSource m_processor;
    LinuxMemorySource m_memory;
    LinuxVolumeSource m_volumes;
    LinuxPowerSource m_power;
    LinuxNetworkSource m_network;
    LinuxProcessSource m_processes;
};

} // namespace ambrelle
