// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/PictureLoader.h"

#include <QObject>
#include <QPixmap>
#include <QSet>

namespace ambrelle {

/// The pictures that views paint, in their final size: what is seen is kept, of the rest as much as fits. Main thread
/// only.
class PictureShelf : public QObject {
    Q_OBJECT
public:
    static constexpr qint64 leastLimit = 12'000'000; ///< bytes kept at least
    static constexpr double roomier = 1.25; ///< in parts of what is seen

    explicit PictureShelf(PictureLoader& loader);
    ~PictureShelf() override;

    /// The picture, or null after ordering it; `arrived()` tells when it is there or has failed. Only what a view
    /// wants stays ordered.
    QPixmap picture(const PictureKey& key, const QSize& pixels, double corner);
    /// The same picture in any other size that is there, to be stretched meanwhile; null when there is none.
    QPixmap standIn(const PictureKey& key) const;
    /// Whether there is no such picture, in no size that was tried. None of them is tried again before release().
    bool hasFailed(const PictureKey& key) const;
    /// All that `view` shows and is about to show, first things first. What is missing is ordered; what no view wants
    /// and has not begun is dropped. A view that goes wants nothing.
    void setWanted(const QObject& view, const QList<PictureOrder>& orders);
    bool isComplete() const { return m_ordered.isEmpty(); } ///< all that views want is there, or has failed
    /// Gives all pictures away, and failures.
    void release();

    qint64 bytes() const { return m_bytes; }

Q_SIGNALS:
    void arrived(const ambrelle::PictureKey& key);

private:
    struct Kept {
        QPixmap pixmap;
        quint64 used = 0; ///< counts up
    };

    bool isWanted(const PictureOrder& order) const;
    void order(const PictureOrder& order);
    void dropUnwanted();
    void receive(const PictureOrder& order, const QImage& image);
    void makeRoom();

    PictureLoader& m_loader;
    QHash<PictureOrder, Kept> m_kept;
    QSet<PictureOrder> m_ordered;
    QHash<PictureKey, QSet<PictureOrder>> m_failed;
    QHash<const QObject*, QSet<PictureOrder>> m_wanted; // by view
    qint64 m_bytes = 0;
    quint64 m_uses = 0;
    std::shared_ptr<PictureShelf*> m_self; // answers may come when it is gone
};

} // namespace ambrelle
