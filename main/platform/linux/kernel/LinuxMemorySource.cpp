// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxMemorySource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/MemoryParser.h"

#include <filesystem>

namespace ambrelle {

LinuxMemorySource::LinuxMemorySource(
    const QByteArray& procFolder, const QByteArray& sysFolder, std::chrono::milliseconds searchPeriod)
    : m_file(procFolder + "/meminfo")
    , m_deviceFolder(sysFolder + "/block")
    , m_searchPeriod(searchPeriod)
{
    use();
}

void LinuxMemorySource::findCompressedDevices()
{
    m_compressedDevices.clear();
    // Not QDir: it looks at what every entry is.
    std::error_code error;
    for (std::filesystem::directory_iterator entry(m_deviceFolder.toStdString(), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string& path = entry->path().native();
        if (path.find("/zram", static_cast<std::size_t>(m_deviceFolder.size())) != std::string::npos)
            m_compressedDevices.emplace_back(QByteArray::fromStdString(path) + "/mm_stat");
    }
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
    if (m_nextSearch.hasExpired()) {
        m_nextSearch = QDeadlineTimer(m_searchPeriod);
        findCompressedDevices();
    }
    for (auto& device : m_compressedDevices)
        memory->compressed += parseCompressedDevice(device.read().value_or(std::string_view()));
    return useOf(*memory);
}

} // namespace ambrelle
