// SPDX-License-Identifier: MIT

#include "window/wallpapers/PictureFiles.h"

#include "wallpapers/DesktopWallpaper.h"

#include <QFileInfo>

#include <utility>

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
    // Together as they lie: hundreds are told at once, and none of them waits for a disk that comes later.
    QHash<QString, QStringList> folders;
    QStringList order;
    for (const QString& path : paths) {
        QStringList& inFolder = folders[QFileInfo(path).path()];
        if (inFolder.isEmpty())
            order.append(QFileInfo(path).path());
        inFolder.append(path);
    }
    for (const QString& folder : std::as_const(order)) {
        const auto work = [files = folders.value(folder)] {
            QHash<QString, Facts> facts;
            for (const QString& path : files)
                facts.insert(path, factsAbout(path));
            return facts;
        };
        m_worker.run(work, [this](const QHash<QString, Facts>& facts) { learn(facts); });
    }
}

void PictureFiles::learn(const QHash<QString, Facts>& facts)
{
    QHash<QString, Facts> all = m_facts;
    all.insert(facts);
    if (std::exchange(m_facts, all) != all)
        Q_EMIT changed();
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
