// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxMemorySource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/MemoryParser.h"

#include <QDir>
#include <QFile>

namespace ambrelle {

using namespace Qt::StringLiterals;

LinuxMemorySource::LinuxMemorySource(const QByteArray& procFolder, const QByteArray& sysFolder)
    : m_file(procFolder + "/meminfo")
{
    const QDir devices(QFile::decodeName(sysFolder + "/block"));
    const auto names = devices.entryList({u"zram*"_s}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const auto& name : names)
        m_compressedDevices.emplace_back(QFile::encodeName(devices.filePath(name)) + "/mm_stat");
    use();
}

QString LinuxMemorySource::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("The kernel does not tell how memory is used.");
}

std::optional<MemoryUse> LinuxMemorySource::use()
{
    const auto text = m_file.read();
    auto memory = text ? parseMemory(*text) : std::nullopt;
    if (!memory)
        return std::nullopt;
    m_total = memory->total;
    for (auto& device : m_compressedDevices)
        memory->compressed += parseCompressedDevice(device.read().value_or(std::string_view()));
    return useOf(*memory);
}

} // namespace ambrelle
