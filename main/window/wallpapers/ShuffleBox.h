// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppSettings.h"

#include <QComboBox>

namespace ambrelle {

/// How often another wallpaper comes; it stores the choice at once, and shows what is stored.
class ShuffleBox final : public QComboBox {
    Q_OBJECT
public:
    explicit ShuffleBox(AppSettings& settings, QWidget* parent = nullptr);

private:
    void showStored();

    Setting<int>& m_minutes;
};

} // namespace ambrelle
