// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "foundation/Ticket.h"
#include "offline/DesktopCanvas.h"
#include "offline/SampleWorld.h"
#include "wallpapers/ImageDiskCache.h"
#include "wallpapers/Wallpaper.h"

#include <QMap>
#include <QObject>
#include <QSet>

#include <functional>
#include <memory>
#include <variant>

namespace ambrelle {

class ThemeAccent;

/// Miniatures of whole desktops: one after the other, first in first out, drawn on a thread of their own and kept
/// packed. What the disk keeps are the skins' desktops in their own accents. Main thread only.
class DesktopSnapshots : public QObject {
    Q_OBJECT
public:
    static constexpr QSize pixels{720, 450};

    struct Collaborators {
        Wallpaper wallpaper;
        ImageDiskCache cache;
        ThemeAccent& accents;
        std::function<QImage()> samplePhoto; ///< of photos and artwork; may be called on any thread
        SampleWorld::MakeMachine makeMachine; ///< of the world of samples
    };
    using Desktop = std::variant<Skin, SavedTheme>;
    using Accents = QMap<Skin, std::optional<QColor>>; ///< in which skins are drawn; nothing: in their own

    /// A desktop as it would be drawn at some moment.
    struct Wish {
        QString key; ///< another one as soon as the desktop or an accent in it is another
        Desktop desktop;
        Accents accents; ///< of the desktop's skins
    };

    explicit DesktopSnapshots(Collaborators with);
    ~DesktopSnapshots() override; ///< waits for the picture that is being drawn

    /// The desktop as it is now, previews of accents included.
    Wish wish(const Desktop& desktop) const;
    /// The miniature, or null after enqueueing it; `changed()` tells when it is there. It is decoded each time.
    QImage image(const Desktop& desktop);
    /// The same as a JPEG file; empty after enqueueing it, and where it could not be made.
    QByteArray packed(const Wish& wish);
    /// Nobody looks for that picture any more: unless it has begun, it is not made.
    void drop(const QString& key);
    /// Whether it could not be made. It is not tried again before release().
    bool hasFailed(const QString& key) const { return m_failed.contains(key); }
    /// The desktop in exactly that many pixels, which nobody keeps: `done` gets it later, null when it failed. It takes
    /// its place in the queue; without the ticket it is not told, and not made unless it has begun.
    [[nodiscard]] Ticket draw(const Wish& wish, const QSize& size, std::function<void(const QImage& image)> done);
    /// Calls `done` with what pictures of widgets show, at once or later; without the ticket it is not called. The
    /// samples last no longer than the call.
    [[nodiscard]] Ticket borrowSamples(std::function<void(const SampleWorld& samples)> done);
    /// Every skin's miniature, on this thread, in the order of the catalogue.
    void renderPresetsNow();
    /// Lets go of pictures that are on the disk as well, and of the samples as soon as nothing is drawn any more;
    /// forgets failures and miniatures that have not begun. What the disk did not take is kept, and what draw() was
    /// asked for is still drawn.
    void release();

Q_SIGNALS:
    void changed(const QString& key); ///< its miniature is there, or has failed

private:
    using Done = std::function<void(const QImage&)>;

    struct Job {
        Wish wish;
        QSize pixels;
        std::shared_ptr<Done> done{}; ///< of a picture that is not kept; leads to nothing when nobody waits any more
    };
    struct Made {
        QImage image; ///< only of what is not kept
        PackedPicture packed{};
    };

    QString urlOf(const Wish& wish) const;
    DesktopCanvas canvasOf(const Wish& wish) const;
    void awaitWorld(std::function<void()> then);
    void makeWorld(const QImage& photo);
    void enqueue(Job job);
    void drain();
    void paint();
    void finish(const Made& made);
    void keep(const QString& key, const PackedPicture& packed);

    Collaborators m_with;
    QMap<QString, PackedPicture> m_images;
    QSet<QString> m_known; // queued, working or done
    QSet<QString> m_failed;
    QList<Job> m_queued;
    std::optional<Job> m_working;
    std::unique_ptr<SampleWorld> m_world; // from the first time that it is needed
    QList<std::function<void()>> m_awaitingWorld;
    bool m_isReleased = false;
    SerialWorker m_worker{*this, SerialWorker::endless}; // a picture is soon done
};

} // namespace ambrelle
