// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/PictureOrder.h"

#include <QImage>

#include <functional>

namespace ambrelle {

/// Makes the pictures of a shelf.
class PictureLoader {
public:
    using Done = std::function<void(const QImage& image)>;

    PictureLoader() = default;
    virtual ~PictureLoader() = default;
    PictureLoader(const PictureLoader&) = delete;
    PictureLoader& operator=(const PictureLoader&) = delete;

    /// `done` gets the picture as ordered, later, on this thread and once; null when there is none.
    virtual void load(const PictureOrder& order, Done done) = 0;
    /// Nobody looks any more. Whether it had not begun: `done` is then not called.
    virtual bool drop(const PictureOrder& order) = 0;
};

} // namespace ambrelle
