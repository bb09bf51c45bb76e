// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/AppLook.h"

#include <QLabel>

namespace ambrelle {

/// Plain text in one of the program's roles; keeps its type and colour when the look of windows changes.
class TextLabel final : public QLabel {
    Q_OBJECT
public:
    enum class Tone { text, soft, danger };

    /// Captions are soft, all else has the colour of text.
    explicit TextLabel(TextRole role, const QString& text = {}, QWidget* parent = nullptr);

    void setTone(Tone tone);
    /// In the direction of the layout, whatever the direction of the text: a path stands below its name.
    void setAlignment(Qt::Alignment alignment);

protected:
    void changeEvent(QEvent* event) override;

private:
    void dress();
    void align();

    TextRole m_role;
    Tone m_tone;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
};

} // namespace ambrelle
