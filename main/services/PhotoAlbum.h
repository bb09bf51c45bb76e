// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Choice.h"
#include "foundation/SerialWorker.h"
#include "foundation/Ticket.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QUuid>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace ambrelle {

class Clock;
class PhotoRotator;

/// The pictures of all photo widgets, each by the widget's id. They are decoded one at a time, so that memory is needed
/// for one only.
class PhotoAlbum : public QObject {
    Q_OBJECT
public:
    explicit PhotoAlbum(Clock& clock, Choice choose = chooseAtRandom);
    ~PhotoAlbum() override; ///< waits for no disk

    /// What the widgets without a folder show that are configured from now on; `make` is called on another thread.
    void setSample(std::function<QImage()> make) { m_sample = std::move(make); }
    /// For that long no disk is asked and nothing decoded; widgets configured meanwhile are loading.
    void rest(std::chrono::milliseconds time);
    /// What a widget is set to; `shown` is its size in pixels. See PhotoRotator::configure().
    void configure(const QUuid& id, const std::optional<QString>& folder, int intervalMinutes, QSize shown);
    void keepOnly(const QList<QUuid>& ids); ///< forgets the widgets that are gone
    void loadPreview(const QUuid& id, const QImage& image);

    /// Of a widget that nobody configured: no picture, empty, not loading.
    QImage image(const QUuid& id) const;
    QString name(const QUuid& id) const;
    bool isEmpty(const QUuid& id) const;
    bool isLoading(const QUuid& id) const;

Q_SIGNALS:
    void changed(const QUuid& id);

private:
    void wake();
    PhotoRotator& rotator(const QUuid& id); ///< made when there is none
    const PhotoRotator* find(const QUuid& id) const;

    Clock& m_clock;
    Choice m_choose;
    std::function<QImage()> m_sample;
    std::map<QUuid, std::unique_ptr<PhotoRotator>> m_rotators;
    std::map<QUuid, std::function<void()>> m_waiting; // while at rest
    Ticket m_rest; // while at rest
    SerialWorker m_worker{*this};
};

} // namespace ambrelle
