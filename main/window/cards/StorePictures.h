// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "window/cards/PictureLoader.h"

#include <QObject>

#include <map>

namespace ambrelle {

class WallpaperStore;

/// Pictures from the stores of wallpapers and of desktops, which make what is missing, and from files of the user's.
/// They are decoded on two threads of their own, one after the other on each, scaled while they are read. A desktop in
/// more pixels than a miniature has is drawn anew.
class StorePictures final : public QObject, public PictureLoader {
public:
    StorePictures(WallpaperStore& wallpapers, DesktopSnapshots& desktops);
    ~StorePictures() override; ///< waits a moment at most for a disk that does not answer

    void load(const PictureOrder& order, Done done) override;
    bool drop(const PictureOrder& order) override;

private:
    /// Work on orders, one after the other; what has not begun can be taken back.
    class Queue {
    public:
        using Make = std::function<QImage()>;

        explicit Queue(QObject& owner)
            : m_worker(owner)
        {
        }
        void add(const PictureOrder& order, Make make, Done done);
        bool drop(const PictureOrder& order);

    private:
        struct Task {
            PictureOrder order;
            Make make;
            Done done;
        };

        void startNext();

        QList<Task> m_tasks;
        bool m_isWorking = false;
        SerialWorker m_worker;
    };
    struct Waiting {
        PictureOrder order;
        Done done;
    };

    void loadWallpaper(const PictureOrder& order, Done done);
    void loadDesktop(const PictureOrder& order, Done done);
    void drawDesktop(const PictureOrder& order, const Done& done);
    void decode(const PictureOrder& order, const QByteArray& jpeg, Done done);
    void storeChanged(PictureKey::Source source, const QString& name);
    bool hasFailed(const PictureKey& key) const;
    bool isAwaited(const PictureKey& key) const;

    WallpaperStore& m_wallpapers;
    DesktopSnapshots& m_desktops;
    QList<Waiting> m_waiting; // for a store to finish a picture
    std::map<quint64, std::pair<PictureOrder, Ticket>> m_drawings; // of desktops in many pixels
    quint64 m_lastDrawing = 0;
    Queue m_decoding{*this}; // of bytes that are there
    Queue m_reading{*this}; // of files, which may be on a disk that does not answer
};

} // namespace ambrelle
