// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/MainWindowModel.h"
#include "window/frame/WindowContext.h"
#include "window/themes/ThemeWork.h"

#include <QWidget>

class QScrollArea;

namespace ambrelle {

class Filmstrip;
class ThemeButtons;
class ThemeDetails;
class ThemePicture;
class ThemesModel;

/// The page of the theme that is open in the main window: how it looks, what belongs to it, what can be done with it,
/// and its neighbours in the grid. Shows nothing while none is open.
class ThemePage final : public QWidget {
    Q_OBJECT
public:
    /// `themes` are the grid's, and outlive this.
    ThemePage(const WindowContext& context, ThemesModel& themes, QWidget* parent = nullptr);

    void takeFocus();
    QList<QWidget*> areas(); ///< that the keyboard goes through
    ThemePicture& picture() { return *m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeKeys();
    void follow();
    void showTheme();
    void showPicture();
    void showWork();
    void arrange();
    void flick(int steps);
    void open(const ThemeChoice& theme);
    void press(ThemeOperation operation);

    WindowContext m_with;
    ThemesModel& m_themes;
    std::optional<ThemeChoice> m_shown;
    ThemePicture* m_picture;
    ThemeDetails* m_details;
    QScrollArea* m_scroll;
    ThemeButtons* m_buttons;
    Filmstrip* m_strip;
};

} // namespace ambrelle
