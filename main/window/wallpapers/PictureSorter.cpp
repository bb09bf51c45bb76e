// SPDX-License-Identifier: MIT

#include "window/wallpapers/PictureSorter.h"

#include "services/PictureDecoder.h"

#include <utility>

namespace ambrelle {

PictureSorter::PictureSorter()
    : m_worker(*this)
{
}

PictureSorter::~PictureSorter() = default;

void PictureSorter::sort(const QStringList& paths, std::function<void(const Sorted&)> done)
{
    const auto work = [paths] {
        Sorted sorted;
        for (const QString& path : paths)
            (PictureDecoder::isPicture(path) ? sorted.pictures : sorted.others).append(path);
        return sorted;
    };
    m_worker.run(work, std::move(done));
}

} // namespace ambrelle
