// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/WindowContext.h"

#include <QWidget>

class QHBoxLayout;

namespace ambrelle {

class Button;
class Segments;
class ThemesModel;

/// The row above the grid of themes: which of them are shown, and what adds others.
class ThemesScope final : public QWidget {
    Q_OBJECT
public:
    /// The model outlives this.
    ThemesScope(const WindowContext& context, const ThemesModel& themes, QWidget* parent = nullptr);

Q_SIGNALS:
    void importWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showModel();
    void arrange();

    WindowContext m_with;
    const ThemesModel& m_themes;
    Segments* m_sections;
    Button* m_import;
    Button* m_save;
    QHBoxLayout* m_row;
};

} // namespace ambrelle
