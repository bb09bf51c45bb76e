// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSize>
#include <QUuid>

#include <optional>

namespace ambrelle {

class LiveServices;
class ReadingFeed;
class SessionVisibility;
class SystemMonitor;
class WidgetController;

/// Tells the services what the widgets on the desktop need of them, so that nothing is measured, asked for or waited
/// for that nobody sees.
class WidgetDemand : public QObject {
public:
    struct Collaborators {
        SystemMonitor& monitor;
        LiveServices& services;
        ReadingFeed& feed;
        const SessionVisibility& session;
    };

    /// `widgets` may change; update() follows.
    WidgetDemand(const Collaborators& collaborators, const QList<WidgetController*>& widgets);

    /// After any change of the widgets or of the screens they stand on.
    void update();

private:
    /// What a photo widget shows, and how.
    struct PhotoWish {
        std::optional<QString> folder;
        int minutes = 0;
        QSize pixels;

        bool operator==(const PhotoWish&) const = default;
    };

    void tellFeed();
    void tellPhotos();

    Collaborators m_with;
    const QList<WidgetController*>& m_widgets;
    QHash<QUuid, PhotoWish> m_photos; // as told
};

} // namespace ambrelle
