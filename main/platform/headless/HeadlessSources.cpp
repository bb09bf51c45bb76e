// SPDX-License-Identifier: MIT

#include "platform/headless/HeadlessSources.h"

#include "foundation/Wording.h"

namespace ambrelle {

namespace {

template <class Source> class Unavailable : public Source {
public:
    bool isAvailable() const final { return false; }
    QString whyNot() const final { return Wording::tr("This mode does not measure the machine."); }
};

class HeadlessProcessor final : public Unavailable<ProcessorSource> {
    std::optional<QList<ProcessorTicks>> ticks() override { return std::nullopt; }
    std::optional<std::array<double, 3>> loadAverages() override { return std::nullopt; }
    double uptime() override { return 0; }
};

class HeadlessMemory final : public Unavailable<MemorySource> {
    quint64 physicalMemory() override { return 0; }
    std::optional<MemoryUse> use() override { return std::nullopt; }
};

class HeadlessVolumes final : public Unavailable<VolumeSource> {
    QList<Volume> volumes() override { return {}; }
};

class HeadlessPower final : public Unavailable<PowerSource> {
    QList<PowerSourceDescription> descriptions() override { return {}; }
};

class HeadlessNetwork final : public Unavailable<NetworkSource> {
    std::optional<QList<InterfaceCounters>> interfaces() override { return std::nullopt; }
};

class HeadlessProcesses final : public Unavailable<ProcessSource> {
    void top(int, Completion completion) override { completion({}); }
};

} // namespace

struct HeadlessSources::Parts {
    HeadlessProcessor processor;
    HeadlessMemory memory;
    HeadlessVolumes volumes;
    HeadlessPower power;
    HeadlessNetwork network;
    HeadlessProcesses processes;
};

HeadlessSources::HeadlessSources()
    : m_parts(std::make_unique<Parts>())
{
}

HeadlessSources::~HeadlessSources() = default;

SystemSources HeadlessSources::sources() const
{
    auto& parts = *m_parts;
    return {parts.processor, parts.memory, parts.volumes, parts.power, parts.network, parts.processes};
}

} // namespace ambrelle
