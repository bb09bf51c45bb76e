// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"

#include <QObject>
#include <QStringList>

#include <functional>

namespace ambrelle {

/// Tells pictures that the user chose from other files, on another thread. It outlives the window, so that nothing is
/// lost where that is closed meanwhile.
class PictureSorter final : public QObject {
public:
    /// Files that begin as pictures do, and the others, both in their order.
    struct Sorted {
        QStringList pictures;
        QStringList others;
    };

    PictureSorter();
    ~PictureSorter() override;

    /// `done` comes later, unless this goes before.
    void sort(const QStringList& paths, std::function<void(const Sorted& sorted)> done);

private:
    SerialWorker m_worker;
};

} // namespace ambrelle
