// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Layer.h"

#include <QImage>

#include <memory>

namespace ambrelle {

/// Paints all layers tile by tile, on several threads, and prints them with the eight bits of a screen.
class TilePrinter {
public:
    TilePrinter(QSize size, const std::vector<std::unique_ptr<Layer>>& layers);

    /// Format_RGB888; null when there is no memory for it.
    QImage print(int threads) const;

private:
    QSize m_size;
    const std::vector<std::unique_ptr<Layer>>& m_layers;
};

} // namespace ambrelle
