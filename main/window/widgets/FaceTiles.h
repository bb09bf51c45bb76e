// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "foundation/Ticket.h"
#include "model/WidgetKinds.h"
#include "window/cards/Card.h"
#include "window/frame/WindowContext.h"
#include "window/widgets/FaceTile.h"

#include <QHash>
#include <QPersistentModelIndex>

class QAbstractItemView;

namespace ambrelle {

/// The pictures of a gallery of widget kinds (`Card::picture` is the kind's raw value): their faces in one skin on its
/// wallpaper. They show what is known of this machine without asking anybody for it, else samples; a picture that is
/// seen is another one as soon as its face would read differently, at most once a second. Nothing is drawn while the
/// view is hidden.
class FaceTiles final : public CardPictures {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds leastAge{1000}; ///< of a picture that is replaced by new data

    /// Belongs to `view`, and is for its cards only.
    FaceTiles(const WindowContext& context, QAbstractItemView& view);

    void setSkin(Skin skin);
    /// What the picture of that kind shows, or would; null while nothing is known.
    std::shared_ptr<const Reading> reading(WidgetKind kind) const;

    QPixmap picture(const QModelIndex& index, QSize devicePixels) override;
    void want(const QList<QModelIndex>& indexes, QSize devicePixels) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Shown {
        QPixmap pixmap;
        std::shared_ptr<const Reading> reading;
    };
    struct Drawn {
        QImage image;
        QImage wallpaper;
    };

    bool isActive() const;
    bool isSeen(WidgetKind kind) const;
    bool looksOutdated(WidgetKind kind) const;
    std::optional<Reading> live(WidgetKind kind) const;
    void borrowSamples();
    void markStale(const WidgetKinds& kinds);
    void redoAll();
    void refreshSoon();
    void refresh();
    void drawNext();
    void drawn(WidgetKind kind, int edition, const FaceTile& tile, const Drawn& drawn);
    void rest();

    WindowContext m_with;
    QAbstractItemView& m_view;
    Skin m_skin;
    QList<QPersistentModelIndex> m_wanted;
    QSize m_pixels;
    QHash<WidgetKind, std::shared_ptr<const Reading>> m_samples;
    Ticket m_samplesComing;
    QHash<WidgetKind, Shown> m_shown;
    WidgetKinds m_stale; // may read differently
    WidgetKinds m_outdated; // look differently: another skin or size
    int m_edition = 0; // grows when all pictures become outdated
    QList<WidgetKind> m_due;
    std::optional<WidgetKind> m_drawing;
    bool m_isRefreshing = false; // soon
    QImage m_wallpaper; // of m_skin, decoded; null: not yet, or not any more
    std::shared_ptr<LayerCache> m_layers; // of the worker
    double m_refreshed = -1e9; // on the clock that never jumps
    Ticket m_nextRefresh;
    SerialWorker m_worker{*this, SerialWorker::endless}; // a tile is soon drawn
};

} // namespace ambrelle
