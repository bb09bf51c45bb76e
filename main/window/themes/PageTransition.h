// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QWidget>

#include <optional>

class QVariantAnimation;

namespace ambrelle {

/// One page giving way to another: the picture that both have goes from its place on the one to that on the other,
/// while the rest fades. Lies over the new page, which can be used meanwhile. Where motion is not wished nothing is
/// shown.
class PageTransition final : public QWidget {
    Q_OBJECT
public:
    /// A picture that is on both pages.
    struct Picture {
        QPixmap pixmap;
        QRectF from; ///< points of the pages
        QRectF to;
        double corner = 0; ///< radius, points
    };

    /// Lies over `page`, and is its child.
    explicit PageTransition(QWidget& page);

    /// Whether it is worth the while to take a picture of the page that goes.
    bool isWanted() const;
    /// `before` shows the page that goes, in device pixels. Takes the place of what is still shown.
    void run(const QPixmap& before, const std::optional<Picture>& picture);
    bool isRunning() const;

Q_SIGNALS:
    void ended();

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void end();

    QPixmap m_before;
    std::optional<Picture> m_picture;
    QVariantAnimation* m_motion;
};

} // namespace ambrelle
