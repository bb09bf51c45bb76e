// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"
#include "offline/DesktopSnapshots.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

class QVariantAnimation;

namespace ambrelle {

class Clock;
class PictureShelf;

/// A desktop as a large picture: at once the best one that is there, soon one drawn for exactly these pixels, which
/// goes when the widget is hidden. Its shadow is for those around to paint.
class ThemePicture final : public QWidget {
    Q_OBJECT
public:
    ThemePicture(PictureShelf& shelf, DesktopSnapshots& snapshots, Clock& clock, QWidget* parent = nullptr);
    ~ThemePicture() override;

    /// `ground` is mixed into what stands here while there is no picture.
    void setDesktop(const DesktopSnapshots::Wish& wish, const QColor& ground);
    /// The same desktop in other accents, shown in its place; none: as it is.
    void setTrial(const std::optional<DesktopSnapshots::Wish>& wish);

    QPixmap shown(); ///< the best one that is there, in whatever size; null: none yet
    /// Another widget shows it in this one's place.
    void setHeldBack(bool heldBack);
    bool isHeldBack() const { return m_isHeldBack; }

    bool isExact() const; ///< it shows what was drawn for these pixels

    static constexpr double corner = 12;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Exact {
        QString key;
        QPixmap pixmap; ///< null: it could not be drawn
    };

    const DesktopSnapshots::Wish* wanted() const;
    QSize pixels() const;
    const Exact* exact() const;
    void request();
    void receive(const QString& key, const QImage& image);
    void drop();
    void paintPicture(QPainter& painter, const QPixmap& pixmap) const;

    PictureShelf& m_shelf;
    DesktopSnapshots& m_snapshots;
    Clock& m_clock;
    std::optional<DesktopSnapshots::Wish> m_wish;
    std::optional<DesktopSnapshots::Wish> m_trial;
    QColor m_ground;
    QList<Exact> m_exact; ///< of these two at most
    QPixmap m_last; ///< painted last, of this desktop
    bool m_isHeldBack = false;
    bool m_waited = false; ///< painted without a picture
    double m_pixelRatio = 0; ///< painted last
    QVariantAnimation* m_arrival;
    QString m_drawnKey; ///< being drawn, in
    QSize m_drawnPixels;
    Ticket m_drawing;
    Ticket m_settling; ///< of the size
};

} // namespace ambrelle
