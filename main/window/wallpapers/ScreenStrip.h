// SPDX-License-Identifier: MIT

#pragma once

#include "window/wallpapers/ScreenPreview.h"

class QComboBox;
class QLabel;

namespace ambrelle {

class AppSettings;
class TextLabel;

/// What the strip of screens is about.
struct ScreenRow {
    QList<ScreenSight> screens{};
    bool isPerScreen = true; ///< they may show different pictures
    int target = -1; ///< the one that wallpapers are set on; below 0: all

    bool operator==(const ScreenRow&) const = default;
};

/// The screens and what they show; at the right, where wallpapers come to, and how often others do.
class ScreenStrip final : public QWidget {
    Q_OBJECT
public:
    /// Both outlive this.
    ScreenStrip(PictureShelf& shelf, AppSettings& settings, QWidget* parent = nullptr);

    void setRow(const ScreenRow& row);
    QList<QWidget*> controls() const; ///< in reading order

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    void targetChosen(int screen); ///< below 0: all

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Places {
        QList<QRect> screens;
        QRect controls;
        int height = 0;
    };

    Places places(int width) const;
    void arrange();
    void showScreens();

    PictureShelf& m_shelf;
    ScreenRow m_row;
    QStringList m_titles; // of the target
    QList<ScreenPreview*> m_previews;
    QWidget* m_controls;
    TextLabel* m_targetLabel;
    QComboBox* m_target;
    QWidget* m_shuffle;
    TextLabel* m_caption;
};

} // namespace ambrelle
