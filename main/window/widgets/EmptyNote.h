// SPDX-License-Identifier: MIT

#pragma once

#include "window/look/Button.h"

#include <QWidget>

namespace ambrelle {

class TextLabel;

/// What stands where there is nothing to show: a symbol, what is missing, and what can be done about it.
class EmptyNote final : public QWidget {
    Q_OBJECT
public:
    explicit EmptyNote(const QString& symbol, QWidget* parent = nullptr);

    void setTexts(const QString& heading, const QString& caption); ///< an empty caption is left out
    Button* addButton(const QString& text); ///< below the texts

private:
    TextLabel* m_heading;
    TextLabel* m_caption;
    QWidget* m_buttons;
};

} // namespace ambrelle
