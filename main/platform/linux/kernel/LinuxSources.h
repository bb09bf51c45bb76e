// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/LinuxMemorySource.h"
#include "platform/linux/kernel/LinuxNetworkSource.h"
#include "platform/linux/kernel/LinuxPowerSource.h"
#include "platform/linux/kernel/LinuxProcessorSource.h"
#include "platform/linux/kernel/LinuxProcessSource.h"
#include "platform/linux/kernel/LinuxVolumeSource.h"

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
