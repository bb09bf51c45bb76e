// SPDX-License-Identifier: MIT

#include "window/wallpapers/PictureFiles.h"

#include "wallpapers/DesktopWallpaper.h"

#include <QFileInfo>

namespace ambrelle {

namespace {

PictureFiles::Facts factsAbout(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() ? PictureFiles::Facts{true, info.lastModified()} : PictureFiles::Facts{};
}

} // namespace

PictureFiles::PictureFiles()
    : m_worker(*this)
{
}

PictureFiles::~PictureFiles() = default;

void PictureFiles::look(const QStringList& paths)
{
    for (const QString& path : paths) {
        m_worker.run([path] { return factsAbout(path); },
            [this, path](const Facts& facts) {
                const auto known = m_facts.constFind(path);
                if (known != m_facts.cend() && *known == facts)
                    return;
                m_facts.insert(path, facts);
                Q_EMIT changed();
            });
    }
}

std::optional<PictureFiles::Facts> PictureFiles::facts(const QString& path) const
{
    const auto known = m_facts.constFind(path);
    return known == m_facts.cend() ? std::nullopt : std::optional(*known);
}

void PictureFiles::list(const QString& folder, std::function<void(const QStringList&)> done)
{
    m_worker.run([folder] { return DesktopWallpaper::extrasIn(folder); }, std::move(done));
}

} // namespace ambrelle
