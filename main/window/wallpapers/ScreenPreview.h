// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/PictureOrder.h"

#include <QWidget>

#include <optional>

namespace ambrelle {

class PictureShelf;

/// One screen, as it is told about.
struct ScreenSight {
    QString name; ///< as people call it
    QString shows{}; ///< what picture that is
    QSizeF points{}; ///< its size
    std::optional<PictureKey> picture{}; ///< none: it cannot be shown

    bool operator==(const ScreenSight&) const = default;
};

/// A screen in its proportions with its name and what it shows.
class ScreenPreview final : public QWidget {
    Q_OBJECT
public:
    /// The shelf outlives this.
    explicit ScreenPreview(PictureShelf& shelf, QWidget* parent = nullptr);

    /// `height` is that of the picture, points.
    void setSight(const ScreenSight& sight, int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize pictureSize() const;
    void drawPicture(QPainter& painter, const QRectF& area);
    void drawTexts(QPainter& painter, const QRect& room) const;

    PictureShelf& m_shelf;
    int m_height = 0;
    ScreenSight m_sight;
    QList<PictureOrder> m_wanted;
};

} // namespace ambrelle
