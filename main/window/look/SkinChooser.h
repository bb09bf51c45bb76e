// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QComboBox>

namespace ambrelle {

/// The thirty skins under the headings of their groups, each with a swatch of its colours.
class SkinChooser final : public QComboBox {
    Q_OBJECT
public:
    explicit SkinChooser(QWidget* parent = nullptr);

    void setChosen(Skin skin); ///< tells nothing

Q_SIGNALS:
    void chose(ambrelle::Skin skin); ///< by the user

private:
    void addHeading(const QString& title);
};

} // namespace ambrelle
