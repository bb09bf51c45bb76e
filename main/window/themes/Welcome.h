// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/PictureOrder.h"
#include "window/frame/WindowContext.h"

#include <QWidget>

class QHBoxLayout;

namespace ambrelle {

class Button;
class TextLabel;

/// The desktop that was applied, as a picture with round corners.
class WelcomePicture final : public QWidget {
    Q_OBJECT
public:
    explicit WelcomePicture(const WindowContext& context);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void look();

    WindowContext m_with;
    PictureKey m_key;
};

/// What is said at the first start: where the widgets are, and what can be done with them.
class Welcome final : public QWidget {
    Q_OBJECT
public:
    explicit Welcome(const WindowContext& context, QWidget* parent = nullptr);

    /// A wide window has room for the picture.
    void setWide(bool wide);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void makeLines();
    void makeActions(QHBoxLayout& row);
    void showPrevious();
    void tellHowToReturn();
    void giveBackPrevious();

    WindowContext m_with;
    TextLabel* m_howToReturn = nullptr;
    Button* m_keepWallpaper = nullptr;
    QWidget* m_isBack = nullptr; ///< "Your picture is back", in place of the button
    WelcomePicture* m_picture;
    Button* m_dismiss;
    QWidget* m_words;
    bool m_isWide = false;
    bool m_gaveBack = false;
};

} // namespace ambrelle
